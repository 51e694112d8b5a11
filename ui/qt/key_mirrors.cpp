#include "ui/qt/key_mirrors.h"

#include "core/controls/form.h"
#include "ui/qt/form_window.h"
#include "ui/qt/shown_text.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <charconv>

namespace zephyne {
namespace {

constexpr std::string_view preset_prefix = "preset-";

// The number in "preset-7"; 0 where there is none.
int preset_number(std::string_view glyph) {
    int number = 0;
    if (glyph.starts_with(preset_prefix)) {
        glyph.remove_prefix(preset_prefix.size());
        std::from_chars(glyph.data(), glyph.data() + glyph.size(), number);
    }
    return number;
}

paint::Pointer pointer_at(const QAbstractButton& key) {
    if (key.isDown()) return paint::Pointer::Down;
    return key.underMouse() ? paint::Pointer::Over : paint::Pointer::Away;
}

bool is_enter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

ButtonMirror::ButtonMirror(FormWindow& window, Button& button)
    : Mirror(window, button), button_(button), key_(new Key(&window)) {
    set_widget(key_);
    connect(key_, &QAbstractButton::clicked, this, [this] { button_.click(); });
}

bool ButtonMirror::key_pressed(QKeyEvent& event) {
    if (!is_enter(event)) return false;
    // A key held down must not press what the button has opened, too.
    if (!event.isAutoRepeat()) button_.click();
    return true;
}

void ButtonMirror::show_name() {
    key_->setAccessibleName(without_mnemonic(shown(button_.accessible_name())));
    key_->setShortcut(QKeySequence::mnemonic(shown(button_.caption())));
}

void ButtonMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    paint::ControlState state = look();
    state.pointer = pointer_at(*key_);
    state.latched = button_.latched();
    state.is_default = button_.form().default_button() == &button_;
    if (const int preset = preset_number(button_.glyph())) {
        paint::ribbon(painter, scale, box(), state, preset);
    } else if (button_.style() == Style::reset) {
        paint::glyph_button(painter, scale, box(), state, paint::Glyph::Reset);
    } else {
        paint::button(painter, scale, box(), state, without_mnemonic(shown(button_.caption())));
    }
}

CheckBoxMirror::CheckBoxMirror(FormWindow& window, CheckBox& box)
    : Mirror(window, box), check_box_(box), key_(new Key(&window)) {
    set_widget(key_);
    key_->setCheckable(true);
    connect(key_, &QAbstractButton::clicked, this, [this] { check_box_.click(); });
    // Screen readers toggle the widget.
    connect(key_, &QAbstractButton::toggled, this, [this](bool checked) {
        if (checked == (check_box_.value() != 0)) return;
        check_box_.click();
        key_->setChecked(check_box_.value() != 0);
    });
}

void CheckBoxMirror::show_property(Property property) {
    if (property == Property::value) key_->setChecked(check_box_.value() != 0);
}

void CheckBoxMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    paint::ControlState state = look();
    state.pointer = pointer_at(*key_);
    state.latched = check_box_.value() != 0;
    if (check_box_.style() == Style::lock) {
        paint::lock_box(painter, scale, box(), state);
    } else {
        paint::check_box(painter, scale, box(), state, shown(check_box_.caption()));
    }
}

OptionButtonMirror::OptionButtonMirror(FormWindow& window, OptionButton& option)
    : Mirror(window, option), option_(option), key_(new Key(&window)) {
    set_widget(key_);
    key_->setCheckable(true);
    // An exclusive button is a radio button to screen readers. A group of its own keeps Qt from
    // clearing the window's other options, which is the control's affair.
    key_->setAutoExclusive(true);
    auto* alone = new QButtonGroup(key_);
    alone->setExclusive(false);
    alone->addButton(key_);
    connect(key_, &QAbstractButton::clicked, this, [this] { option_.click(); });
    connect(key_, &QAbstractButton::toggled, this, [this](bool checked) {
        if (checked == option_.selected()) return;
        if (checked) option_.click();
        key_->setChecked(option_.selected());
    });
}

void OptionButtonMirror::show_property(Property property) {
    if (property != Property::value) return;
    key_->setChecked(option_.selected());
    key_->setFocusPolicy(option_.is_group_stop() ? Qt::StrongFocus : Qt::ClickFocus);
}

bool OptionButtonMirror::key_pressed(QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_Left:
            option_.step(GroupStep::previous);
            return true;
        case Qt::Key_Down:
        case Qt::Key_Right:
            option_.step(GroupStep::next);
            return true;
        default:
            return false;
    }
}

void OptionButtonMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    paint::ControlState state = look();
    state.pointer = pointer_at(*key_);
    state.latched = option_.selected();
    paint::option_button(painter, scale, box(), state, shown(option_.caption()));
}

TransportMirror::TransportMirror(FormWindow& window, Transport& transport)
    : Mirror(window, transport), transport_(transport) {
    auto* strip = new QWidget(&window);
    set_widget(strip);
    constexpr std::array<const char*, key_count> names{"Play", "Pause", "Stop"};
    for (std::size_t i = 0; i < key_count; ++i) {
        keys_[i] = new Key(strip);
        keys_[i]->setFocusPolicy(Qt::NoFocus);
        keys_[i]->setAccessibleName(QLatin1String(names[i]));
        watch(keys_[i]);
        connect(keys_[i], &QAbstractButton::pressed, this, [this, i] { move_to(i); });
        connect(keys_[i], &QAbstractButton::clicked, this,
                [this, i] { transport_.press(static_cast<TransportKey>(i)); });
    }
}

void TransportMirror::laid_out() {
    const Pixels& pixels = window().pixels();
    const QPoint origin = origin_in_window(*widget());
    for (std::size_t i = 0; i < key_count; ++i) {
        const QRect key =
            paint::transport_key_box(pixels.scale(), box(), static_cast<paint::TransportKey>(i));
        keys_[i]->setGeometry(pixels.containing(key).translated(-origin));
    }
}

void TransportMirror::show_property(Property property) {
    if (property != Property::enabled) return;
    for (std::size_t i = 0; i < key_count; ++i) {
        keys_[i]->setEnabled(transport_.key_enabled(static_cast<TransportKey>(i)));
    }
}

void TransportMirror::move_to(std::size_t key) {
    current_ = key;
    repaint();
}

bool TransportMirror::key_pressed(QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Left:
            move_to(current_ > 0 ? current_ - 1 : 0);
            return true;
        case Qt::Key_Right:
            move_to(std::min(current_ + 1, key_count - 1));
            return true;
        case Qt::Key_Space:
            if (!event.isAutoRepeat()) keys_[current_]->click();
            return true;
        default:
            return false;
    }
}

void TransportMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    paint::TransportState state;
    for (std::size_t i = 0; i < key_count; ++i) {
        state.enabled[i] = transport_.usable() && keys_[i]->isEnabled();
    }
    state.focus = window().focus_look(transport_);
    state.current = static_cast<paint::TransportKey>(current_);
    switch (transport_.light()) {
        case TransportLight::play:
            state.lit = paint::TransportLit::Play;
            break;
        case TransportLight::pause:
            state.lit = paint::TransportLit::Pause;
            break;
        case TransportLight::none:
            break;
    }
    for (std::size_t i = 0; i < key_count; ++i) {
        const paint::Pointer pointer = pointer_at(*keys_[i]);
        if (pointer == paint::Pointer::Away) continue;
        state.pointed = static_cast<paint::TransportKey>(i);
        state.pointer = pointer;
    }
    paint::transport(painter, scale, box(), state);
}

}  // namespace zephyne
