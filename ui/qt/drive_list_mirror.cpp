#include "ui/qt/drive_list_mirror.h"

#include "ui/qt/drop_down.h"
#include "ui/qt/form_window.h"
#include "ui/qt/paint/lists.h"
#include "ui/qt/shown_text.h"

#include <QMouseEvent>
#include <QWheelEvent>

namespace zephyne {

void DriveBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) on_open();
}

void DriveBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

DriveListMirror::DriveListMirror(FormWindow& window, DriveList& list)
    : Mirror(window, list), list_(list), box_(new DriveBox(&window)) {
    set_widget(box_);
    box_->on_open = [this] { open(); };
    box_->on_close = [this] { close(); };
    connect(box_, &QComboBox::activated, this,
            [this](int index) { choose(static_cast<std::size_t>(index)); });
}

void DriveListMirror::choose(std::size_t index) {
    list_.choose(index);
    show_selection();  // the logic may have gone back
}

void DriveListMirror::open() {
    list_.refresh();
    std::vector<QString> texts;
    for (const Volume& volume : list_.volumes()) texts.push_back(shown(volume.text()));
    auto* popup = new DropDown(*box_, std::move(texts), list_.selected(),
                               [this](std::size_t index) { choose(index); });
    popup_ = popup;
    connect(popup, &QObject::destroyed, this, [this] { repaint(); });
    const QRect place = window().pixels().containing(box());
    popup->open({window().mapToGlobal(place.topLeft()), place.size()}, window().pixels().factor);
    repaint();
}

void DriveListMirror::close() {
    if (popup_) popup_->close();
}

void DriveListMirror::detached() {
    close();
}

void DriveListMirror::show_selection() {
    box_->setCurrentIndex(static_cast<int>(list_.selected()));
}

void DriveListMirror::show_property(Property property) {
    if (property == Property::items) {
        box_->clear();
        for (const Volume& volume : list_.volumes()) box_->addItem(shown(volume.text()));
    }
    if (property == Property::items || property == Property::selection) show_selection();
}

void DriveListMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    paint::ControlState state = look();
    if (popup_ && popup_->isVisible()) state.pointer = paint::Pointer::Down;
    paint::drive_list(painter, scale, box(), state, shown(list_.drive().text()));
}

}  // namespace zephyne
