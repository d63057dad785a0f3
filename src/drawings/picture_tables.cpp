#include "drawings/picture_tables.h"

#include <array>

namespace orby {
namespace {

constexpr PictureOutline Back[] = {
    {"M21.75 12L3 12M9.75 5.25L3 12 9.75 18.75", {}, {.Colour = Ink::Text, .Width = 1.5}},
};

// The marks of judgements differ in shape and in colour.
constexpr PictureOutline CheckMark[] = {
    {"M12 3L22 21 2 21ZM12 9L12 15M12 17L12 19", {}, {.Colour = Ink::Doubtful, .Width = 2}},
};

constexpr PictureOutline Contents[] = {
    {"M12 6C9.75 4.5 6 3.75 2.25 3.75L2.25 18.75C6 18.75 9.75 19.5 12 21 14.25 19.5 18 18.75 21.75 18.75L21.75 3.75"
     "C18 3.75 14.25 4.5 12 6ZM12 6L12 21",
     {},
     {.Colour = Ink::Text, .Width = 1.5}},
};

constexpr PictureOutline Description[] = {
    {"M5.25 2.25L14.25 2.25 18.75 6.75 18.75 21.75 5.25 21.75ZM14.25 2.25L14.25 6.75 18.75 6.75M8.25 11.25L15.75 11.25"
     "M8.25 14.25L15.75 14.25M8.25 17.25L12.75 17.25",
     {},
     {.Colour = Ink::Text, .Width = 1.5}},
};

constexpr PictureOutline EarlierMark[] = {
    {"M12 3C16.97 3 21 7.03 21 12 21 16.97 16.97 21 12 21 7.03 21 3 16.97 3 12 3 7.03 7.03 3 12 3ZM12 7L12 12.5 16 15",
     {},
     {.Colour = Ink::Doubtful, .Width = 2}},
};

constexpr PictureOutline Find[] = {
    {"M3.75 10.5C3.75 14.23 6.77 17.25 10.5 17.25 14.23 17.25 17.25 14.23 17.25 10.5 17.25 6.77 14.23 3.75 10.5 3.75 "
     "6.77 3.75 3.75 6.77 3.75 10.5ZM15.25 15.25L21 21",
     {},
     {.Colour = Ink::Text, .Width = 1.5}},
};

constexpr PictureOutline Forward[] = {
    {"M2.25 12L21 12M14.25 5.25L21 12 14.25 18.75", {}, {.Colour = Ink::Text, .Width = 1.5}},
};

constexpr PictureOutline HoldsMark[] = {
    {"M12 2.5C6.75 2.5 2.5 6.75 2.5 12 2.5 17.25 6.75 21.5 12 21.5 17.25 21.5 21.5 17.25 21.5 12 21.5 6.75 17.25 2.5 "
     "12 2.5Z"
     "M7 12.5L10.5 16 17 9",
     {},
     {.Colour = Ink::Good, .Width = 2}},
};

constexpr PictureOutline Open[] = {
    {"M2.25 18.75L2.25 5.25 8.25 5.25 10.5 8.25 18.75 8.25 18.75 11.25M2.25 18.75L5.25 11.25 21.75 11.25 18.75 18.75Z",
     {},
     {.Colour = Ink::Text, .Width = 1.5}},
};

constexpr PictureOutline Orby[] = {
    {"M2 60L2 40C2 23.43 15.43 10 32 10 48.57 10 62 23.43 62 40L62 60Z", {Ink::Muted, 0.25}, {}},
    {"M46.8 38.4L60.1 36.1M41.6 29.5L50.3 19.2M32 26L32 12.5M22.4 29.5L13.7 19.2M17.2 38.4L3.9 36.1",
     {},
     {.Colour = Ink::Rock, .Width = 5, .IsRound = true}},
    {"M16 59L16 41C16 32.16 23.16 25 32 25 40.84 25 48 32.16 48 41L48 59", {}, {.Colour = Ink::Bolt, .Width = 5}},
    {"M43.6 37.4L44.1 40.4M38.6 30.8L40.9 32.8M30.5 29L33.5 29M23.1 32.8L25.4 30.8M19.9 40.4L20.4 37.4",
     {},
     {.Colour = Ink::Rock, .Width = 3, .IsRound = true}},
    {"M2 60.5L62 60.5", {}, {.Colour = Ink::Muted, .Width = 3, .IsRound = true}},
};

constexpr PictureOutline Parameters[] = {
    {"M1.5 5.25L12 5.25M16.5 5.25L22.5 5.25M12.75 3.75L15.75 3.75 15.75 6.75 12.75 6.75ZM1.5 11.25L4.5 11.25M9 11.25"
     "L22.5 11.25M5.25 9.75L8.25 9.75 8.25 12.75 5.25 12.75ZM1.5 17.25L12 17.25M16.5 17.25L22.5 17.25M12.75 15.75"
     "L15.75 15.75 15.75 18.75 12.75 18.75Z",
     {},
     {.Colour = Ink::Text, .Width = 1.5}},
};

constexpr PictureOutline Print[] = {
    {"M6.75 17.25L2.25 17.25 2.25 8.25 21.75 8.25 21.75 17.25 17.25 17.25M6.75 8.25L6.75 2.25 17.25 2.25 17.25 8.25"
     "M6.75 12.75L17.25 12.75 17.25 21.75 6.75 21.75ZM9.75 17.25L14.25 17.25",
     {},
     {.Colour = Ink::Text, .Width = 1.5}},
};

constexpr PictureOutline Save[] = {
    {"M3.75 3.75L17.25 3.75 20.25 6.75 20.25 20.25 3.75 20.25ZM8.25 3.75L8.25 8.25 15.75 8.25 15.75 3.75M6.75 20.25"
     "L6.75 12.75 17.25 12.75 17.25 20.25",
     {},
     {.Colour = Ink::Text, .Width = 1.5}},
};

constexpr PictureOutline ShortMark[] = {
    {"M7.75 2L16.25 2 22 7.75 22 16.25 16.25 22 7.75 22 2 16.25 2 7.75ZM8 8L16 16M16 8L8 16",
     {},
     {.Colour = Ink::Bad, .Width = 2.5}},
};

constexpr PictureOutline UncomputedMark[] = {
    {"M3 3L21 3 21 21 3 21ZM7.5 12L16.5 12", {}, {.Colour = Ink::Muted, .Width = 2}},
};

constexpr PictureOutline ZoomIn[] = {
    {"M3.75 10.5C3.75 14.23 6.77 17.25 10.5 17.25 14.23 17.25 17.25 14.23 17.25 10.5 17.25 6.77 14.23 3.75 10.5 3.75 "
     "6.77 3.75 3.75 6.77 3.75 10.5ZM15.25 15.25L21 21",
     {},
     {.Colour = Ink::Text, .Width = 1.5}},
    {"M10.5 7.5L10.5 13.5M7.5 10.5L13.5 10.5", {}, {.Colour = Ink::Bolt, .Width = 1.5}},
};

constexpr PictureOutline ZoomOut[] = {
    {"M3.75 10.5C3.75 14.23 6.77 17.25 10.5 17.25 14.23 17.25 17.25 14.23 17.25 10.5 17.25 6.77 14.23 3.75 10.5 3.75 "
     "6.77 3.75 3.75 6.77 3.75 10.5ZM15.25 15.25L21 21",
     {},
     {.Colour = Ink::Text, .Width = 1.5}},
    {"M7.5 10.5L13.5 10.5", {}, {.Colour = Ink::Bolt, .Width = 1.5}},
};

constexpr std::array<Picture, 17> Pictures{{
    {"back", 24, 24, Back},
    {"check", 24, 24, CheckMark},
    {"contents", 24, 24, Contents},
    {"description", 24, 24, Description},
    {"earlier", 24, 24, EarlierMark},
    {"find", 24, 24, Find},
    {"forward", 24, 24, Forward},
    {"holds", 24, 24, HoldsMark},
    {"open", 24, 24, Open},
    {"orby", 64, 64, Orby},
    {"parameters", 24, 24, Parameters},
    {"print", 24, 24, Print},
    {"save", 24, 24, Save},
    {"short", 24, 24, ShortMark},
    {"uncomputed", 24, 24, UncomputedMark},
    {"zoom_in", 24, 24, ZoomIn},
    {"zoom_out", 24, 24, ZoomOut},
}};

}  // namespace

std::span<const Picture> DrawnPictures() { return Pictures; }

}  // namespace orby
