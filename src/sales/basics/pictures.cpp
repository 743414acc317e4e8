// SPDX-License-Identifier: MIT
#include "sales/basics/pictures.h"

namespace zqn::pictures {

namespace {

// 32-bit colours, blue in the high byte.
constexpr std::uint32_t ink = 0x005E4A3A;
constexpr std::uint32_t paper = 0x00FFFFFF;
constexpr std::uint32_t fold = 0x00E2D8CC;
constexpr std::uint32_t cover = 0x0062C9F2;
constexpr std::uint32_t coverShade = 0x003FA4D6;

// A sheet of paper is its outline in ink, the white in it, and the folded corner.
constexpr PicturePoint sheetEdge[] = {{6, 2}, {20, 2}, {27, 9}, {27, 30}, {6, 30}};
constexpr PicturePoint sheetInside[] = {{7, 3}, {19, 3}, {26, 10}, {26, 29}, {7, 29}};
constexpr PicturePoint sheetCorner[] = {{19, 3}, {19, 10}, {26, 10}};
constexpr PictureShape newSheetShapes[] = {{ink, sheetEdge}, {paper, sheetInside}, {fold, sheetCorner}};

constexpr PicturePoint backEdge[] = {{2, 27}, {2, 6}, {12, 6}, {15, 9}, {27, 9}, {27, 27}};
constexpr PicturePoint backInside[] = {{3, 26}, {3, 7}, {11.5, 7}, {14.5, 10}, {26, 10}, {26, 26}};
constexpr PicturePoint frontEdge[] = {{2, 27}, {8, 14}, {31, 14}, {26, 27}};
constexpr PicturePoint frontInside[] = {{3.8, 26}, {8.8, 15}, {29.5, 15}, {25.2, 26}};
constexpr PictureShape folderShapes[] = {
    {ink, backEdge}, {coverShade, backInside}, {ink, frontEdge}, {cover, frontInside}};

constexpr PicturePoint rearEdge[] = {{3, 2}, {15, 2}, {20, 7}, {20, 23}, {3, 23}};
constexpr PicturePoint rearInside[] = {{4, 3}, {14, 3}, {19, 8}, {19, 22}, {4, 22}};
constexpr PicturePoint nearEdge[] = {{12, 9}, {24, 9}, {29, 14}, {29, 30}, {12, 30}};
constexpr PicturePoint nearInside[] = {{13, 10}, {23, 10}, {28, 15}, {28, 29}, {13, 29}};
constexpr PicturePoint nearCorner[] = {{23, 10}, {23, 15}, {28, 15}};
constexpr PictureShape twoSheetsShapes[] = {
    {ink, rearEdge}, {paper, rearInside}, {ink, nearEdge}, {paper, nearInside}, {fold, nearCorner}};

constexpr PicturePoint rim[] = {{1.5, 0}, {4, 0},     {5.5, 1.5}, {5.5, 4},
                                {4, 5.5}, {1.5, 5.5}, {0, 4},     {0, 1.5}};
constexpr PicturePoint glass[] = {{2, 1.2},   {3.5, 1.2}, {4.3, 2},   {4.3, 3.5},
                                  {3.5, 4.3}, {2, 4.3},   {1.2, 3.5}, {1.2, 2}};
constexpr PicturePoint handle[] = {{4, 5}, {5, 4}, {8, 7}, {7, 8}};
constexpr PictureShape magnifierShapes[] = {{ink, handle}, {ink, rim}, {paper, glass}};

}  // namespace

constexpr Picture newSheet{u"new", 32, 32, newSheetShapes};
constexpr Picture folder{u"open", 32, 32, folderShapes};
constexpr Picture twoSheets{u"copy", 32, 32, twoSheetsShapes};
constexpr Picture magnifier{u"search", 8, 8, magnifierShapes};

}  // namespace zqn::pictures
