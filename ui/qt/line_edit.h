// One line of text to edit: Qt's line editor, with our lettering and caret. The window paints the
// ground.
#pragma once

#include "ui/qt/caret.h"
#include "ui/qt/pixels.h"

#include <QColor>
#include <QLineEdit>

namespace zephyne {

class LineEdit final : public QLineEdit {
  public:
    explicit LineEdit(QWidget* parent);

    // box: the text box's, device pixels of the window.
    void lay_out(const Pixels& pixels, const QRect& box);
    void set_colour(const QColor& colour);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    double width_of(const QString& part) const;  // device pixels

    Pixels pixels_;
    QRect box_;
    QColor colour_;
    Caret caret_;
};

}  // namespace zephyne
