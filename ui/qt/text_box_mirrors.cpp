#include "ui/qt/text_box_mirrors.h"

#include "ui/qt/form_window.h"
#include "ui/qt/key_codes.h"
#include "ui/qt/paint/palette.h"
#include "ui/qt/shown_text.h"

#include <QKeyEvent>

namespace zephyne {
namespace {

// As Qt's document keeps line ends.
QString with_line_feeds(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

QColor text_colour(const TextBox& box) {
    if (!box.usable()) return paint::palette::quiet;
    return box.style() == Style::glass ? paint::rgb(box.colour()) : paint::palette::well_text;
}

}  // namespace

TextBoxMirror::TextBoxMirror(FormWindow& window, TextBox& box)
    : Mirror(window, box), text_box_(box) {}

void TextBoxMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    if (text_box_.style() == Style::glass) {
        paint::glass_text_box(painter, scale, box(), look());
    } else {
        paint::text_box(painter, scale, box(), look());
    }
}

void TextBoxMirror::show_property(Property property) {
    switch (property) {
        case Property::text:
            show_text();
            break;
        case Property::selection:
            show_selection();
            break;
        case Property::colour:
        case Property::enabled:
            set_colour(text_colour(text_box_));
            break;
        default:
            break;
    }
}

bool TextBoxMirror::key_pressed(QKeyEvent& event) {
    const auto character = entered_character(event);
    return character && !text_box_.press_key(*character);
}

TextLineMirror::TextLineMirror(FormWindow& window, TextBox& box)
    : TextBoxMirror(window, box), edit_(new LineEdit(&window)) {
    set_widget(edit_);
    edit_->setReadOnly(box.access() == TextAccess::read_only);
    connect(edit_, &QLineEdit::textEdited, this, [this](const QString& text) {
        text_box_.type(text.toStdString());
        show_text();
    });
    connect(edit_, &QLineEdit::selectionChanged, this,
            [this] { text_box_.user_selected(edit_->selectedText().toStdString()); });
}

void TextLineMirror::show_selection() {
    if (!text_box_.selected_text().empty()) edit_->selectAll();
}

void TextLineMirror::show_text() {
    const QString text = shown(text_box_.text());
    if (text == edit_->text()) return;
    edit_->setText(text);
    // A long text shows its beginning, unless the user is at work in it.
    if (!edit_->hasFocus()) edit_->setCursorPosition(0);
}

void TextLineMirror::laid_out() {
    edit_->lay_out(window().pixels(), box());
}

TextAreaMirror::TextAreaMirror(FormWindow& window, TextBox& box)
    : TextBoxMirror(window, box),
      edit_(new TextArea(&window, box.style() == Style::glass ? TextArea::Ground::glass
                                                              : TextArea::Ground::well)) {
    set_widget(edit_);
    watch(edit_->viewport());
    edit_->setReadOnly(box.access() == TextAccess::read_only);
    connect(edit_, &QTextEdit::textChanged, this, [this] {
        if (!showing_) take_text();
    });
    connect(edit_, &QTextEdit::selectionChanged, this, [this] {
        QString text = edit_->textCursor().selectedText();
        text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
        text_box_.user_selected(text.toStdString());
    });
}

void TextAreaMirror::show_selection() {
    if (!text_box_.selected_text().empty()) edit_->selectAll();
}

void TextAreaMirror::take_text() {
    QString text = edit_->toPlainText();
    text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    text_box_.type(text.toStdString());
    show_text();
}

void TextAreaMirror::show_text() {
    const QString text = with_line_feeds(shown(text_box_.text()));
    if (text == edit_->toPlainText()) return;
    showing_ = true;
    edit_->show_text(text);
    showing_ = false;
}

void TextAreaMirror::laid_out() {
    showing_ = true;  // a new line pitch counts as a change of the text
    edit_->lay_out(window().pixels(), box());
    showing_ = false;
}

}  // namespace zephyne
