#include "ui/qt/make_mirror.h"

#include "ui/qt/drive_list_mirror.h"
#include "ui/qt/face_mirrors.h"
#include "ui/qt/key_mirrors.h"
#include "ui/qt/list_mirrors.h"
#include "ui/qt/slider_mirror.h"
#include "ui/qt/text_box_mirrors.h"

namespace zephyne {
namespace {

// A control's kind tells its class.
template <class MirrorClass, class ControlClass>
std::unique_ptr<Mirror> mirror(FormWindow& window, Control& control) {
    return std::make_unique<MirrorClass>(window, static_cast<ControlClass&>(control));
}

}  // namespace

std::unique_ptr<Mirror> make_mirror(FormWindow& window, Control& control) {
    switch (control.kind()) {
        case ControlKind::label:
            return mirror<LabelMirror, Label>(window, control);
        case ControlKind::button:
            return mirror<ButtonMirror, Button>(window, control);
        case ControlKind::check_box:
            return mirror<CheckBoxMirror, CheckBox>(window, control);
        case ControlKind::option_button:
            return mirror<OptionButtonMirror, OptionButton>(window, control);
        case ControlKind::list_box:
            return mirror<ListBoxMirror, ListBox>(window, control);
        case ControlKind::drive_list:
            return mirror<DriveListMirror, DriveList>(window, control);
        case ControlKind::dir_list:
            return mirror<DirListMirror, DirList>(window, control);
        case ControlKind::slider:
            return mirror<SliderMirror, Slider>(window, control);
        case ControlKind::frame:
            return mirror<FrameMirror, Frame>(window, control);
        case ControlKind::picture:
            return mirror<PictureMirror, Picture>(window, control);
        case ControlKind::transport:
            return mirror<TransportMirror, Transport>(window, control);
        case ControlKind::text_box:
            return static_cast<TextBox&>(control).lines() == TextLines::one
                       ? mirror<TextLineMirror, TextBox>(window, control)
                       : mirror<TextAreaMirror, TextBox>(window, control);
        case ControlKind::shape:
        case ControlKind::line:
            break;
    }
    return std::make_unique<DecorationMirror>(window, control);
}

}  // namespace zephyne
