// SPDX-License-Identifier: MIT
#include "split/split_marks.h"

namespace zqn::split_marks {

namespace {

constexpr std::uint32_t black = 0x00000000;
constexpr std::uint32_t white = 0x00FFFFFF;

constexpr PicturePoint square[] = {{0, 0}, {14, 0}, {14, 14}, {0, 14}};

constexpr PicturePoint arrow[] = {{4, 2}, {10, 7}, {4, 12}};

constexpr PicturePoint shaft[] = {{9, 2}, {12, 5}, {6, 11}, {3, 8}};
constexpr PicturePoint tip[] = {{2.5, 9}, {5, 11.5}, {1, 13}};

constexpr PicturePoint upright[] = {{6, 2}, {8, 2}, {8, 12}, {6, 12}};
constexpr PicturePoint level[] = {{2, 6}, {12, 6}, {12, 8}, {2, 8}};
constexpr PicturePoint falling[] = {{4.2, 2.8}, {11.2, 9.8}, {9.8, 11.2}, {2.8, 4.2}};
constexpr PicturePoint rising[] = {{9.8, 2.8}, {11.2, 4.2}, {4.2, 11.2}, {2.8, 9.8}};

constexpr PictureShape arrowOnLight[] = {{black, arrow}};
constexpr PictureShape arrowOnDark[] = {{black, square}, {white, arrow}};
constexpr PictureShape pencilOnLight[] = {{black, shaft}, {black, tip}};
constexpr PictureShape pencilOnDark[] = {{black, square}, {white, shaft}, {white, tip}};
constexpr PictureShape starOnLight[] = {{black, upright}, {black, level}, {black, falling}, {black, rising}};
constexpr PictureShape starOnDark[] = {
    {black, square}, {white, upright}, {white, level}, {white, falling}, {white, rising}};

constexpr int size = 14;

}  // namespace

constinit const Picture current{u"picCurrent", size, size, arrowOnLight};
constinit const Picture currenti{u"picCurrenti", size, size, arrowOnDark};
constinit const Picture edit{u"picEdit", size, size, pencilOnLight};
constinit const Picture editi{u"picEditi", size, size, pencilOnDark};
constinit const Picture fresh{u"picNew", size, size, starOnLight};
constinit const Picture freshi{u"picNewi", size, size, starOnDark};

}  // namespace zqn::split_marks
