# zqn_embed_images(source folder): writes a C++ source with the pictures of all GIF files of a folder, in the order of
# their names: "15-Phone.gif" becomes the picture "zqImgPhone".
function(zqn_embed_images source folder)
  file(GLOB files CONFIGURE_DEPENDS ${folder}/*.gif)
  list(SORT files)
  set(bytes "")
  set(table "")
  foreach(file IN LISTS files)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    cmake_path(GET file STEM stem)
    string(REGEX REPLACE "^([0-9]+)-(.*)$" "\\1" number ${stem})
    string(REGEX REPLACE "^([0-9]+)-(.*)$" "\\2" name ${stem})
    file(READ ${file} hex HEX)
    string(REGEX REPLACE "(..)" "0x\\1," hex ${hex})
    string(APPEND bytes "constexpr unsigned char gif${number}[] = {${hex}};\n")
    string(APPEND table "    {u\"zqImg${name}\", 16, 16, {}, gif${number}},\n")
  endforeach()
  file(CONFIGURE OUTPUT ${source} @ONLY CONTENT [[
#include "frontend/images.h"

namespace zqn {

namespace {

@bytes@
constexpr Picture pictures[] = {
@table@};

}  // namespace

std::span<const Picture> imagePictures() noexcept { return pictures; }

}  // namespace zqn
]])
endfunction()
