#include "ui/qt/whats_this.h"

#include "ui/qt/popup_look.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QWhatsThis>
#include <algorithm>
#include <cmath>

namespace zephyne {
namespace {

// px at 100 %
constexpr int kNoteWidth = 300;
constexpr int kBelowPointer = 8;

class Note final : public QLabel {
  public:
    Note(QWidget* parent, const QString& text, double factor) : QLabel(text, parent, Qt::Popup) {
        setAttribute(Qt::WA_DeleteOnClose);
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setStyleSheet(popup_look::whats_this(factor));
        ensurePolished();
        const int width = static_cast<int>(std::lround(kNoteWidth * factor));
        setFixedSize(width, heightForWidth(width));
    }

  protected:
    void mousePressEvent(QMouseEvent* /*event*/) override { close(); }
    void keyPressEvent(QKeyEvent* /*event*/) override { close(); }
};

}  // namespace

void show_whats_this(QWidget& asked, const QPoint& screen_point, const QString& text,
                     double factor) {
    QWhatsThis::leaveWhatsThisMode();
    if (text.isEmpty()) return;
    auto* note = new Note(&asked, text, factor);
    const QRect free = asked.screen()->availableGeometry();
    QPoint place = screen_point + QPoint(0, static_cast<int>(std::lround(kBelowPointer * factor)));
    place.setX(std::max(free.left(), std::min(place.x(), free.right() - note->width())));
    place.setY(std::max(free.top(), std::min(place.y(), free.bottom() - note->height())));
    note->move(place);
    note->show();
}

void start_whats_this_mode() {
    QWhatsThis::enterWhatsThisMode();
}

}  // namespace zephyne
