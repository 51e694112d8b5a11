#include "core/sheets/form3.h"

#include <string_view>

namespace zephyne {
namespace {

// Where the six boxes lie, in two rows of three.
constexpr int kBoxWidth = 2800;
constexpr int kHeadingHeight = 240;
constexpr int kBoxHeight = 1560;
constexpr std::array kLefts = {180, 3100, 6020};
constexpr std::array kHeadingTops = {1590, 3510};
constexpr std::array kBoxTops = {1845, 3765};

constexpr std::array<std::string_view, 6> kBoxNames = {"Text1(1)", "Text1(2)", "Text1(3)",
                                                       "Text1(4)", "Text1(5)", "Text1(6)"};

ControlDesign heading(std::string_view name, std::string_view caption, std::size_t row,
                      std::size_t column) {
    return {.name = name,
            .place = {kLefts[column], kHeadingTops[row], kBoxWidth, kHeadingHeight},
            .caption = caption,
            .style = Style::heading};
}

TextBox text_box(Form& form, std::size_t index) {
    return TextBox(form, TextLines::many, TextAccess::read_only,
                   {.name = kBoxNames[index],
                    .place = {kLefts[index % 3], kBoxTops[index / 3], kBoxWidth, kBoxHeight},
                    .tab = static_cast<int>(index) + 1,
                    .stop = TabStop::yes});
}

}  // namespace

Form3::Form3()
    : Form({.name = "Form3",
            .title = "Information",
            .width = 9000,
            .height = 6060 + kTitleBarHeight + kLowerFrameHeight}),
      Image1(*this, ImageList::banner, {.name = "Image1", .place = {180, 150, 8640, 600}}),
      Label3(*this, {.name = "Label3", .place = {180, 885, 480, 285}, .caption = "File:"}),
      text2(*this, TextLines::one, TextAccess::read_only,
            {.name = "text2", .place = {660, 885, 5220, 285}, .tab = 0, .stop = TabStop::yes}),
      Label12(*this, {.name = "Label12", .place = {6120, 885, 1485, 285}, .caption = "MIDI Type:"}),
      Label13(*this, {.name = "Label13", .place = {7770, 885, 1050, 285}, .style = Style::strong}),
      Label1(*this, {.name = "Label1", .place = {180, 1215, 840, 285}, .caption = "File Size:"}),
      Label2(*this, {.name = "Label2", .place = {1050, 1215, 4800, 285}, .style = Style::strong}),
      Label4(*this,
             {.name = "Label4", .place = {6120, 1215, 1485, 285}, .caption = "Number of Tracks:"}),
      Label5(*this, {.name = "Label5", .place = {7770, 1215, 1050, 285}, .style = Style::strong}),
      Label6(*this, heading("Label6", "General Text:", 0, 0)),
      Label7(*this, heading("Label7", "Copyright Text:", 0, 1)),
      Label8(*this, heading("Label8", "Track Names:", 0, 2)),
      Label9(*this, heading("Label9", "Instrument Names:", 1, 0)),
      Label10(*this, heading("Label10", "Song Lyrics:", 1, 1)),
      Label11(*this, heading("Label11", "Markers, Cues, Misc.", 1, 2)),
      Text1{text_box(*this, 0), text_box(*this, 1), text_box(*this, 2),
            text_box(*this, 3), text_box(*this, 4), text_box(*this, 5)},
      Command1(*this, {.name = "Command1",
                       .place = {3915, 5520, 1170, 345},
                       .caption = "OK",
                       .tab = 7,
                       .stop = TabStop::yes}) {
    const std::array headings = {&Label6, &Label7, &Label8, &Label9, &Label10, &Label11};
    for (std::size_t i = 0; i < headings.size(); ++i) {
        Text1[i].set_accessible_name(headings[i]->caption());
    }
    text2.set_accessible_name(Label3.caption());
    set_default_button(&Command1);
    set_cancel_button(&Command1);
}

}  // namespace zephyne
