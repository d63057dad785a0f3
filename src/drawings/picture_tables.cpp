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

constexpr PictureOutline EntrySection[] = {
    {"M84 24L76 32M116 24L108 32M148 24L140 32M180 24L172 32M212 24L204 32M244 24L236 32M276 24L268 32M308 24L300 32"
     "M340 24L332 32M372 24L364 32M404 24L396 32",
     {},
     {.Colour = Ink::Muted, .Width = 1}},
    {"M70 46C79.33 41.33 88.67 41.33 98 46 107.33 50.67 116.67 50.67 126 46 135.33 41.33 144.67 41.33 154 46 163.33 "
     "50.67 172.67 50.67 182 46 191.33 41.33 200.67 41.33 210 46 219.33 50.67 228.67 50.67 238 46 247.33 41.33 256.67 "
     "41.33 266 46 275.33 50.67 284.67 50.67 294 46 303.33 41.33 312.67 41.33 322 46 331.33 50.67 340.67 50.67 350 46 "
     "359.33 41.33 368.67 41.33 378 46 387.33 50.67 396.67 50.67 406 46",
     {},
     {.Colour = Ink::Muted, .Width = 1}},
    {"M70 53C79.33 48.33 88.67 48.33 98 53 107.33 57.67 116.67 57.67 126 53 135.33 48.33 144.67 48.33 154 53 163.33 "
     "57.67 172.67 57.67 182 53 191.33 48.33 200.67 48.33 210 53 219.33 57.67 228.67 57.67 238 53 247.33 48.33 256.67 "
     "48.33 266 53 275.33 57.67 284.67 57.67 294 53 303.33 48.33 312.67 48.33 322 53 331.33 57.67 340.67 57.67 350 53 "
     "359.33 48.33 368.67 48.33 378 53 387.33 57.67 396.67 57.67 406 53",
     {},
     {.Colour = Ink::Muted, .Width = 1}},
    {"M70 68L406 68", {}, {.Colour = Ink::Muted, .Width = 1, .Opacity = 0.6}},
    {"M70 24L406 24", {}, {.Colour = Ink::Text, .Width = 1.5}},
    {"M70 180L150 180 150 236 70 236ZM330 180L406 180 406 236 330 236Z", {Ink::Muted, 0.35}, {}},
    {"M70 180L406 180M70 236L406 236M150 180L150 236M330 180L330 236", {}, {.Colour = Ink::Text, .Width = 1.5}},
    {"M150 180L186 118 294 118 330 180Z", {Ink::Rock, 0.2}, {.Colour = Ink::Rock, .Width = 1.5}},
    {"M174 84L174 183M218 84L218 183M262 84L262 183M306 84L306 183", {}, {.Colour = Ink::Bolt, .Width = 2.5}},
    {"M166 184L182 184M210 184L226 184M254 184L270 184M298 184L314 184", {}, {.Colour = Ink::Bolt, .Width = 4}},
    {"M330 180L330 108", {}, {.Colour = Ink::Muted, .Width = 1, .IsDashed = true}},
    {"M330 146C324.03 146.01 318.16 147.6 313 150.6", {}, {.Colour = Ink::Rock, .Width = 1.5}},
    {"M322 147L340 97 346 97", {}, {.Colour = Ink::Text, .Width = 0.8}},
    {"M46 24L66 24M46 180L66 180M52 24L52 180", {}, {.Colour = Ink::Text, .Width = 0.8}},
    {"M130 84L170 84M130 180L146 180M136 84L136 180", {}, {.Colour = Ink::Text, .Width = 0.8}},
    {"M298 118L360 118M334 180L360 180M354 118L354 180", {}, {.Colour = Ink::Text, .Width = 0.8}},
    {"M150 240L150 260M330 240L330 260M150 254L330 254", {}, {.Colour = Ink::Text, .Width = 0.8}},
    {"M52 24L49 32 55 32ZM52 180L49 172 55 172Z", {Ink::Text}, {}},
    {"M136 84L133 92 139 92ZM136 180L133 172 139 172Z", {Ink::Text}, {}},
    {"M354 118L351 126 357 126ZM354 180L351 172 357 172Z", {Ink::Text}, {}},
    {"M150 254L158 251 158 257ZM330 254L322 251 322 257Z", {Ink::Text}, {}},
};
constexpr PictureLabel EntrySectionLabels[] = {
    {.Text = "Depth of cover", .At = {42, 102}, .Side = Anchor::Middle, .Turn = -90},
    {.Text = "Bolt length", .At = {130, 136}, .Side = Anchor::End},
    {.Text = "Roof fall angle", .At = {350, 101}},
    {.Text = "Rock load height", .At = {362, 154}},
    {.Text = "Entry width", .At = {240, 273}, .Side = Anchor::Middle}};

constexpr PictureOutline IntersectionPlan[] = {
    {"M10 10L150 10 150 86C150 95.33 145.33 100 136 100L10 100Z", {Ink::Muted, 0.35}, {}},
    {"M410 10L270 10 270 86C270 95.33 274.67 100 284 100L410 100Z", {Ink::Muted, 0.35}, {}},
    {"M10 296L150 296 150 234C150 224.67 145.33 220 136 220L10 220Z", {Ink::Muted, 0.35}, {}},
    {"M410 296L270 296 270 234C270 224.67 274.67 220 284 220L410 220Z", {Ink::Muted, 0.35}, {}},
    {"M150 10L150 86C150 95.33 145.33 100 136 100L10 100", {}, {.Colour = Ink::Text, .Width = 1.5}},
    {"M270 10L270 86C270 95.33 274.67 100 284 100L410 100", {}, {.Colour = Ink::Text, .Width = 1.5}},
    {"M150 296L150 234C150 224.67 145.33 220 136 220L10 220", {}, {.Colour = Ink::Text, .Width = 1.5}},
    {"M270 296L270 234C270 224.67 274.67 220 284 220L410 220", {}, {.Colour = Ink::Text, .Width = 1.5}},
    {"M147 97L273 223M273 97L147 223", {}, {.Colour = Ink::Bolt, .Width = 2}},
    {"M146 96L156 100 150 106ZM274 224L264 220 270 214ZM274 96L264 100 270 106ZM146 224L156 220 150 214Z",
     {Ink::Bolt},
     {}},
    {"M44 100L44 220", {}, {.Colour = Ink::Text, .Width = 0.8}},
    {"M44 100L41 108 47 108ZM44 220L41 212 47 212Z", {Ink::Text}, {}},
};
constexpr PictureLabel IntersectionPlanLabels[] = {
    {.Text = "Entry width", .At = {52, 165}},
    {.Text = "Entry", .At = {342, 165}, .Side = Anchor::Middle},
    {.Text = "Crosscut", .At = {210, 44}, .Side = Anchor::Middle},
    {.Text = "Pillar", .At = {80, 52}, .Side = Anchor::Middle},
    {.Text = "Pillar", .At = {340, 52}, .Side = Anchor::Middle},
    {.Text = "Pillar", .At = {80, 264}, .Side = Anchor::Middle},
    {.Text = "Pillar", .At = {340, 264}, .Side = Anchor::Middle},
    {.Text = "d1", .At = {177, 114}, .IsBold = true},
    {.Text = "d2", .At = {243, 114}, .Side = Anchor::End, .IsBold = true},
    {.Text = "Sum of the diagonals = d1 + d2", .At = {210, 322}, .Side = Anchor::Middle}};

constexpr std::array<Picture, 18> Pictures{{
    {"back", 24, 24, Back, {}},
    {"check", 24, 24, CheckMark, {}},
    {"contents", 24, 24, Contents, {}},
    {"description", 24, 24, Description, {}},
    {"find", 24, 24, Find, {}},
    {"forward", 24, 24, Forward, {}},
    {"holds", 24, 24, HoldsMark, {}},
    {"open", 24, 24, Open, {}},
    {"orby", 64, 64, Orby, {}},
    {"parameters", 24, 24, Parameters, {}},
    {"print", 24, 24, Print, {}},
    {"save", 24, 24, Save, {}},
    {"short", 24, 24, ShortMark, {}},
    {"uncomputed", 24, 24, UncomputedMark, {}},
    {"zoom_in", 24, 24, ZoomIn, {}},
    {"zoom_out", 24, 24, ZoomOut, {}},
    {"entry_section", 484, 280, EntrySection, EntrySectionLabels},
    {"intersection_plan", 420, 330, IntersectionPlan, IntersectionPlanLabels},
}};

}  // namespace

std::span<const Picture> DrawnPictures() { return Pictures; }

}  // namespace orby
