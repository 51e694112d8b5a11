#include "platform/desktop/qt_popup_menu.h"

#include <QCursor>
#include <QScreen>
#include <algorithm>
#include <utility>

namespace zephyne {
namespace {

// Song names are shown as they are: "&" would make a shortcut of the next letter, and what stands
// behind a tab would be taken for the name of a key.
QString shown(const std::string& caption) {
    QString text = QString::fromUtf8(caption.data(), static_cast<qsizetype>(caption.size()));
    text.replace(QLatin1Char('&'), QLatin1String("&&"));
    for (QChar& character : text) {
        if (character.unicode() < u' ') character = QLatin1Char(' ');
    }
    return text;
}

}  // namespace

QtPopupMenu::QtPopupMenu(std::unique_ptr<QStyle> style) : style_(std::move(style)) {
    menu_.setStyle(style_.get());
    menu_.setSeparatorsCollapsible(false);  // the sheet knows where it wants them
    QObject::connect(&menu_, &QMenu::aboutToShow, &menu_, [this] { bring_up_to_date(); });
}

void QtPopupMenu::set_entries(PopupMenu entries) {
    entries_ = std::move(entries);
    menu_.clear();
    actions_.clear();
    for (const MenuItem* item : entries_.items) {
        if (item->kind == MenuItemKind::separator) {
            actions_.push_back(menu_.addSeparator());
            continue;
        }
        QAction* action = menu_.addAction(QString());
        QObject::connect(action, &QAction::triggered, &menu_, [item] { item->click(); });
        if (item == entries_.default_item) menu_.setDefaultAction(action);
        actions_.push_back(action);
    }
    bring_up_to_date();
}

void QtPopupMenu::bring_up_to_date() {
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        const MenuItem& item = *entries_.items[i];
        actions_[i]->setVisible(item.visible);
        if (item.kind == MenuItemKind::separator) continue;
        actions_[i]->setText(shown(item.caption));
        actions_[i]->setEnabled(item.enabled);
    }
    stay_on_screen();
}

// An open menu grows with each song that ends, and most icons are near an edge.
void QtPopupMenu::stay_on_screen() {
    if (!menu_.isVisible()) return;
    const QRect screen = menu_.screen()->availableGeometry();
    QRect place = menu_.geometry();
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    menu_.move(std::max(place.left(), screen.left()), std::max(place.top(), screen.top()));
}

void QtPopupMenu::open_at_mouse() {
    if (!menu_.isVisible()) menu_.popup(QCursor::pos());
}

}  // namespace zephyne
