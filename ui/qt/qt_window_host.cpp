#include "ui/qt/qt_window_host.h"

#include "core/controls/form.h"
#include "core/controls/simple_controls.h"
#include "ui/qt/form_window.h"
#include "ui/qt/label_role.h"
#include "ui/qt/shown_text.h"

#include <QApplication>
#include <QEventLoop>
#include <QScreen>
#include <algorithm>
#include <utility>

namespace zephyne {

QtWindowHost::QtWindowHost(double factor, std::function<bool()> reachable_when_hidden)
    : factor_(std::max(1.0, factor)), reachable_when_hidden_(std::move(reachable_when_hidden)) {}

QtWindowHost::~QtWindowHost() {
    for (const auto& [form, window] : windows_) delete window;
}

FormWindow* QtWindowHost::window_of(const Form& form) const {
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second.data();
}

int QtWindowHost::text_height(const Label& label) const {
    const Pixels pixels{factor_, qGuiApp->primaryScreen()->devicePixelRatio()};
    const int height = paint::wrapped_height(pixels.scale(), shown(label.caption()), role_of(label),
                                             pixels.box(label.place()).width());
    return pixels.twips(pixels.containing({0, 0, 1, height}).height());
}

void QtWindowHost::create(Form& form) {
    destroy(form);
    windows_[&form] = new FormWindow(form, factor_);
}

void QtWindowHost::destroy(Form& form) {
    if (FormWindow* window = window_of(form)) window->end();
    windows_.erase(&form);
}

void QtWindowHost::run_modal(Form& form) {
    QPointer<FormWindow> window = window_of(form);
    if (!window) return;
    QEventLoop loop;
    window->make_modal(QApplication::activeWindow());
    window->on_hidden = [&loop] { loop.quit(); };
    form.set_visible(true);
    if (form.visible()) loop.exec();
    if (window) window->on_hidden = nullptr;
}

TwipsSize QtWindowHost::screen() const {
    const QSize free = qGuiApp->primaryScreen()->availableGeometry().size();
    const Pixels pixels{factor_, 1};
    return {pixels.twips(free.width()), pixels.twips(free.height())};
}

std::vector<Place> QtWindowHost::screens() const {
    const Pixels pixels{factor_, 1};
    std::vector<Place> areas;
    for (const QScreen* screen : QGuiApplication::screens()) {  // the primary one first
        const QRect free = screen->availableGeometry();
        areas.push_back({pixels.twips(free.x()), pixels.twips(free.y()), pixels.twips(free.width()),
                         pixels.twips(free.height())});
    }
    return areas;
}

std::int32_t QtWindowHost::extended_style(const Form& form) const {
    const FormWindow* window = window_of(form);
    return window ? window->extended_style() : 0;
}

void QtWindowHost::set_extended_style(Form& form, std::int32_t style) {
    if (FormWindow* window = window_of(form)) window->set_extended_style(style);
}

void QtWindowHost::bring_to_front(Form& form) {
    if (FormWindow* window = window_of(form)) window->come_forward();
}

Form* QtWindowHost::find(std::string_view form_name) const {
    Form* found = nullptr;
    for (const auto& [form, window] : windows_) {
        if (!window || form->name() != form_name) continue;
        if (!found || form->visible()) found = &window->form();
    }
    return found;
}

Form* QtWindowHost::modal_form() const {
    const auto* window = dynamic_cast<FormWindow*>(QApplication::activeModalWidget());
    return window ? &window->form() : nullptr;
}

bool QtWindowHost::reachable_when_hidden() const {
    return reachable_when_hidden_ && reachable_when_hidden_();
}

}  // namespace zephyne
