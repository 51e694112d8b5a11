#include "ui/qt/form_window.h"

#include "core/ports/window_host.h"
#include "ui/qt/make_mirror.h"
#include "ui/qt/popup_look.h"
#include "ui/qt/shown_text.h"
#include "ui/qt/taskbar_button.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPaintEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace zephyne {
namespace {

using namespace std::chrono_literals;

// A window manager moves a new window about until its frame is on; a user's hand rests.
constexpr auto rest_after_move = 150ms;

// What a window manager needs between showing a window and changing its state.
constexpr auto settle_after_show = 50ms;

// A screen shows no more than some sixty pictures a second.
constexpr qint64 between_pictures = 16;  // ms

constexpr Qt::WindowFlags main_window = Qt::Window | Qt::WindowTitleHint |
                                        Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                                        Qt::WindowCloseButtonHint;
constexpr Qt::WindowFlags dialog =
    Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

WindowState state_of(const QWidget& window) {
    if (window.isMinimized()) return WindowState::minimized;
    return window.isMaximized() ? WindowState::maximized : WindowState::normal;
}

Qt::WindowStates qt_state(WindowState state) {
    switch (state) {
        case WindowState::minimized:
            return Qt::WindowMinimized;
        case WindowState::maximized:
            return Qt::WindowMaximized;
        case WindowState::normal:
            break;
    }
    return Qt::WindowNoState;
}

}  // namespace

FormWindow::FormWindow(Form& form, double factor)
    : QWidget(nullptr, main_window),
      form_(form),
      pixels_(pixels_of(*this, factor)),
      tooltip_look_(new QWidget(this)),
      extended_style_(kAppWindowStyle),
      shown_style_(kAppWindowStyle) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    // What has no font of its own yet takes this one, so that the system's is never looked up.
    setFont(paint::font(paint::Role::Row, pixels_.logical_scale()));
    tooltip_look_->setStyleSheet(popup_look::tooltip(factor));
    tooltip_look_->hide();
    moved_.setSingleShot(true);
    moved_.setInterval(rest_after_move);
    connect(&moved_, &QTimer::timeout, this, &FormWindow::report_place);
    settling_.setSingleShot(true);
    settling_.setInterval(settle_after_show);
    connect(&settling_, &QTimer::timeout, this, &FormWindow::settled);
    painting_.setSingleShot(true);
    painting_.setTimerType(Qt::PreciseTimer);
    connect(&painting_, &QTimer::timeout, this, [this] {
        painted_.invalidate();
        QEvent request(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(this, &request);
    });
    hiding_.setSingleShot(true);
    connect(&hiding_, &QTimer::timeout, this, &QWidget::hide);

    form_.observe(this);
    setWindowTitle(shown(form_.title()));
    take_place();
    if (form_.visible()) show_or_hide();
}

FormWindow::~FormWindow() {
    if (attached_) form_.observe(nullptr);
}

void FormWindow::end() {
    if (!std::exchange(attached_, false)) return;
    form_.observe(nullptr);
    for (const auto& mirror : mirrors_) mirror->detach();
    hide();
    deleteLater();
}

void FormWindow::subject_gone() {
    end();
}

// While the window manager takes up the window, for the first time.
void FormWindow::furnish() {
    if (!attached_ || !mirrors_.empty()) return;
    for (Control* control : form_.controls()) mirrors_.push_back(make_mirror(*this, *control));
    use_scale();
    for (const auto& mirror : mirrors_) mirror->attach();
    set_tab_order();
    give_focus();
}

void FormWindow::set_tab_order() {
    for (const auto& mirror : mirrors_) {
        if (mirror->widget() && mirror->control().tab_stop() == TabStop::yes) {
            stops_.push_back(mirror.get());
        }
    }
    std::stable_sort(stops_.begin(), stops_.end(), [](const Mirror* a, const Mirror* b) {
        return a->control().tab() < b->control().tab();
    });
    for (std::size_t i = 1; i < stops_.size(); ++i) {
        setTabOrder(stops_[i - 1]->widget(), stops_[i]->widget());
    }
}

void FormWindow::focus_first_stop() {
    const auto first = std::find_if(stops_.begin(), stops_.end(), [](const Mirror* stop) {
        return stop->on_window() && stop->control().usable();
    });
    if (first != stops_.end()) (*first)->widget()->setFocus(Qt::OtherFocusReason);
}

void FormWindow::use_scale() {
    pixels_ = pixels_of(*this, pixels_.factor);
    for (const auto& mirror : mirrors_) mirror->lay_out();
    update();
}

QSize FormWindow::client_size() const {
    return {pixels_.logical(form_.place().width), pixels_.logical(form_.client_height())};
}

bool FormWindow::holds(const Place& place) const {
    return place.left < form_.place().width && place.top < form_.client_height();
}

QPoint FormWindow::position() const {
    return {pixels_.logical(form_.place().left), pixels_.logical(form_.place().top)};
}

// Where the window really is does not count here: while a window manager is about to put it into a
// frame, Qt may report the place of either, and whatever is changed then moves the window by the
// width of the frame.
void FormWindow::take_place() {
    if (settling_.isActive()) return;
    if (client_size() != size() || minimumSize() != size()) setFixedSize(client_size());
    if (position() == placed_at_ || form_.state() != WindowState::normal) return;
    placed_at_ = position();
    move(position());
}

// A window that is shown again in the same step is not hidden at all, unless its taskbar button
// comes or goes, which takes a new show.
void FormWindow::show_or_hide() {
    if (!form_.visible()) {
        hiding_.start();
        return;
    }
    hiding_.stop();
    if (isVisible() && shown_style_ == extended_style_) return take_state();
    hide();
    shown_style_ = extended_style_;
    set_taskbar_button(
        *this, (extended_style_ & kAppWindowStyle) != 0 ? TaskbarButton::yes : TaskbarButton::no);
    settling_.stop();
    take_place();
    take_state();
    show();
    settling_.start();
    QMetaObject::invokeMethod(
        this, [this] { furnish(); }, Qt::QueuedConnection);
}

void FormWindow::settled() {
    take_place();
    activate_shown();
}

void FormWindow::activate_shown() {
    const QWidget* modal = QApplication::activeModalWidget();
    if (!isVisible() || isMinimized() || isActiveWindow() || (modal && modal != this)) return;
    if (QGuiApplication::focusWindow() != windowHandle()) {
        activateWindow();
        return;
    }
    // Hidden and shown again at once: the window has kept the keyboard, so no event will ever tell
    // Qt's widgets, which gave it up when they were hidden.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(this);
    QT_WARNING_POP
}

void FormWindow::take_state() {
    if (state_of(*this) == form_.state()) return;
    const Qt::WindowStates kept =
        windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen);
    setWindowState(kept | qt_state(form_.state()));
}

void FormWindow::property_changed(Property property) {
    switch (property) {
        case Property::title:
            setWindowTitle(shown(form_.title()));
            break;
        case Property::place:
            take_place();
            for (const auto& mirror : mirrors_) mirror->show_or_hide();
            break;
        case Property::visible:
            show_or_hide();
            break;
        case Property::state:
            take_state();
            break;
        default:
            break;
    }
}

void FormWindow::make_modal(QWidget* above) {
    const bool was_visible = isVisible();
    setWindowFlags(dialog);  // hides
    setWindowModality(Qt::ApplicationModal);
    winId();  // the window handle comes with it
    if (above && above != this) windowHandle()->setTransientParent(above->windowHandle());
    if (was_visible) show();
}

void FormWindow::come_forward() {
    form_.set_visible(true);
    QTimer::singleShot(settle_after_show, this, [this] {
        if (!isVisible()) return;
        setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
        raise();
        activateWindow();
    });
}

void FormWindow::repaint(const QRect& device) {
    if (!device.isEmpty()) update(pixels_.containing(device));
}

Mirror* FormWindow::mirror_of(const Control* control) const {
    const auto found = std::find_if(mirrors_.begin(), mirrors_.end(), [&](const auto& mirror) {
        return &mirror->control() == control;
    });
    return found == mirrors_.end() ? nullptr : found->get();
}

paint::Focus FormWindow::focus_look(const Control& control) const {
    if (form_.focused() != &control || !isActiveWindow()) return paint::Focus::None;
    return keyboard_used_ ? paint::Focus::Ring : paint::Focus::Quiet;
}

void FormWindow::follow_focus() {
    const Mirror* mirror = mirror_of(form_.focused());
    if (mirror && mirror->widget() && mirror->widget() != focusWidget()) {
        mirror->widget()->setFocus(Qt::OtherFocusReason);
    }
}

void FormWindow::show_tooltip(const QPoint& screen_point, const QString& text) {
    const QString plain = Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
    QToolTip::showText(screen_point, plain, tooltip_look_);
}

void FormWindow::paintEvent(QPaintEvent* event) {
    DevicePainter painter(*this);
    const paint::Scale scale = pixels_.scale();
    paint::faceplate(painter, scale, pixels_.device(rect()));
    if (!attached_) return;

    const auto dirty = [&](const QRect& reach) {
        return std::any_of(event->region().begin(), event->region().end(), [&](const QRect& part) {
            return pixels_.device(part).intersects(reach);
        });
    };
    const auto paint_one = [&](const Mirror& mirror) {
        if (mirror.control().shown() && dirty(mirror.reach())) mirror.paint(painter, scale);
    };
    // The focus ring lies above the neighbours.
    const Mirror* focused = mirror_of(form_.focused());
    for (const auto& mirror : mirrors_) {
        if (mirror.get() != focused) paint_one(*mirror);
    }
    if (focused) paint_one(*focused);
}

void FormWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    connect(windowHandle(), &QWindow::screenChanged, this, &FormWindow::use_scale,
            Qt::UniqueConnection);
    if (pixels_of(*this, pixels_.factor).ratio != pixels_.ratio) use_scale();
    give_focus();
}

void FormWindow::give_focus() {
    if (form_.focused()) {
        follow_focus();
    } else {
        focus_first_stop();
    }
}

void FormWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous()) return;  // minimised
    report_place();
    if (on_hidden) on_hidden();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    report_place();
    if (attached_) form_.request_unload(CloseReason::user);
}

void FormWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (isVisible()) moved_.start();
}

void FormWindow::report_place() {
    if (!moved_.isActive() && sender() != &moved_) return;
    moved_.stop();
    if (!attached_ || position() == pos() || state_of(*this) != WindowState::normal) return;
    form_.user_moved(pixels_.twips(x()), pixels_.twips(y()));
    placed_at_ = position();
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!attached_ || !isVisible() || size() == client_size()) return;
    if (state_of(*this) != WindowState::normal) return;
    form_.user_resized(pixels_.twips(width()),
                       pixels_.twips(height()) + kTitleBarHeight + kLowerFrameHeight);
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (!attached_) return;
    switch (event->type()) {
        case QEvent::WindowStateChange:
            form_.user_changed_state(state_of(*this));
            break;
        case QEvent::ActivationChange:
            if (Mirror* mirror = mirror_of(form_.focused())) mirror->repaint();
            break;
        default:
            break;
    }
}

// What changes more often is painted with the next picture. Qt asks once for each picture, and not
// again until it has been painted.
bool FormWindow::painting_waits() {
    if (painting_.isActive()) return true;
    if (painted_.isValid() && !painted_.hasExpired(between_pictures)) {
        painting_.start(static_cast<int>(between_pictures - painted_.elapsed()));
        return true;
    }
    painted_.start();
    return false;
}

bool FormWindow::event(QEvent* event) {
    if (event->type() == QEvent::UpdateRequest && painting_waits()) return true;
    if (event->type() == QEvent::WindowActivate && attached_) form_.user_activated();
    return QWidget::event(event);
}

}  // namespace zephyne
