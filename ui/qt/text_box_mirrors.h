// Text boxes, of one line and of many.
#pragma once

#include "core/controls/text_box.h"
#include "ui/qt/line_edit.h"
#include "ui/qt/mirror.h"
#include "ui/qt/text_area.h"

namespace zephyne {

class TextBoxMirror : public Mirror {
  public:
    void paint(QPainter& painter, const paint::Scale& scale) const override;

  protected:
    TextBoxMirror(FormWindow& window, TextBox& box);

    void show_property(Property property) override;
    bool key_pressed(QKeyEvent& event) override;

    // Puts the control's text into the widget where the two differ.
    virtual void show_text() = 0;

    // Marks the whole text, as the control asked for.
    virtual void show_selection() = 0;
    virtual void set_colour(const QColor& colour) = 0;

    TextBox& text_box_;
};

class TextLineMirror final : public TextBoxMirror {
  public:
    TextLineMirror(FormWindow& window, TextBox& box);

  private:
    void show_text() override;
    void show_selection() override;
    void set_colour(const QColor& colour) override { edit_->set_colour(colour); }
    void laid_out() override;

    LineEdit* edit_;
};

// Where the user enters lines, they end with CR LF in the control's text.
class TextAreaMirror final : public TextBoxMirror {
  public:
    TextAreaMirror(FormWindow& window, TextBox& box);

  private:
    void show_text() override;
    void show_selection() override;
    void set_colour(const QColor& colour) override { edit_->set_colour(colour); }
    void laid_out() override;
    void take_text();

    TextArea* edit_;
    bool showing_ = false;  // the text in the widget changes because the control's did
};

}  // namespace zephyne
