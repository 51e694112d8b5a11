// Many lines of text to edit or to read: Qt's text editor, with our lettering, caret and scroll
// bar. The window paints the ground.
#pragma once

#include "ui/qt/caret.h"
#include "ui/qt/paint/type.h"
#include "ui/qt/pixels.h"
#include "ui/qt/scroll_thumb.h"

#include <QColor>
#include <QTextEdit>

class QTextBlock;
class QTextLine;

namespace zephyne {

class TextArea final : public QTextEdit {
  public:
    enum class Ground { well, glass };  // on glass the text glows

    TextArea(QWidget* parent, Ground ground);

    // box: the text box's, device pixels of the window.
    void lay_out(const Pixels& pixels, const QRect& box);
    void set_colour(const QColor& colour);

    // Lines end with "\n". The caret goes to the start.
    void show_text(const QString& text);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    paint::Role role() const;
    double pitch() const;  // from line to line, logical
    void set_margins();
    void set_line_pitch();
    void paint_line(QPainter& painter, const QTextBlock& block, const QTextLine& line,
                    const QPointF& place) const;

    Ground ground_;
    Pixels pixels_;
    QRect box_;
    QColor colour_;
    ScrollThumb thumb_;
    Caret caret_;
};

}  // namespace zephyne
