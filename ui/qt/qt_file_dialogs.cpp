#include "ui/qt/qt_file_dialogs.h"

#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/scale.h"
#include "ui/qt/paint/type.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QPalette>
#include <QScreen>
#include <QStringList>
#include <QStyleFactory>

namespace zephyne {
namespace {

namespace palette = paint::palette;

constexpr QSize kSize(560, 400);
constexpr double kLargestPart = 0.9;  // of the screen

// Qt wants "Texts (*.txt)", and a pattern for all files that fits names without a point, too.
QStringList name_filters(const std::string& filter) {
    QStringList filters;
    const QStringList parts = QString::fromStdString(filter).split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString text = parts[i].section(QLatin1String(" ("), 0, 0);
        const QString pattern = parts[i + 1] == QLatin1String("*.*") ? "*" : parts[i + 1];
        filters << QStringLiteral("%1 (%2)").arg(text, pattern);
    }
    return filters;
}

QPalette dark_palette() {
    QPalette dark(palette::face_bottom);
    const auto set = [&](QPalette::ColorRole role, const QColor& color, const QColor& off) {
        dark.setColor(role, color);
        dark.setColor(QPalette::Disabled, role, off);
    };
    set(QPalette::Window, palette::face_bottom, palette::face_bottom);
    set(QPalette::Base, palette::well, palette::well);
    set(QPalette::AlternateBase, palette::row_hover, palette::row_hover);
    set(QPalette::Button, palette::key_bottom, palette::key_off);
    set(QPalette::WindowText, palette::engraving, palette::face_off);
    set(QPalette::Text, palette::well_text, palette::quiet);
    set(QPalette::ButtonText, palette::ink, palette::quiet);
    set(QPalette::PlaceholderText, palette::quiet, palette::quiet);
    set(QPalette::Highlight, palette::selection, palette::selection_off);
    set(QPalette::HighlightedText, palette::selection_text, palette::quiet);
    set(QPalette::ToolTipBase, palette::popup, palette::popup);
    set(QPalette::ToolTipText, palette::engraving, palette::quiet);
    return dark;
}

// What the dialog lies above. Between two dialogs in a row no window is active for a moment.
QWidget* window_below() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible()) return widget;
    }
    return nullptr;
}

void take_choice(QFileDialog& dialog, const FileChoice& choice) {
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters(name_filters(choice.filter));
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
}

}  // namespace

std::optional<std::string> QtFileDialogs::run(QFileDialog& dialog) {
    // Without effect on the desktop's own dialogs.
    dialog.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    dialog.setPalette(dark_palette());
    dialog.setFont(paint::font(paint::Role::Row, paint::Scale{factor_}));
    dialog.setViewMode(QFileDialog::List);
    dialog.resize((kSize * factor_).boundedTo(dialog.screen()->availableSize() * kLargestPart));
    if (!folder_.isEmpty()) dialog.setDirectory(folder_);

    const bool accepted = dialog.exec() == QDialog::Accepted;
    folder_ = dialog.directory().absolutePath();
    const QStringList chosen = dialog.selectedFiles();
    if (!accepted || chosen.isEmpty()) return std::nullopt;
    return QFile::encodeName(chosen.first()).toStdString();
}

std::optional<std::string> QtFileDialogs::open_file(const FileChoice& choice) {
    QFileDialog dialog(window_below(), QStringLiteral("Open"));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    take_choice(dialog, choice);
    // Not the dialog's own default suffix: that would hide a file that really has none.
    auto path = run(dialog);
    if (path && !QFile::exists(QFile::decodeName(path->c_str())) &&
        path->find('.', path->rfind('/') + 1) == std::string::npos) {
        *path += choice.default_extension;
    }
    return path;
}

std::optional<std::string> QtFileDialogs::save_file(const FileChoice& choice) {
    QFileDialog dialog(window_below(), QStringLiteral("Save As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    take_choice(dialog, choice);
    dialog.setDefaultSuffix(QString::fromStdString(choice.default_extension));
    return run(dialog);
}

std::optional<std::string> QtFileDialogs::choose_folder(const std::string& title) {
    QFileDialog dialog(window_below(), QString::fromStdString(title));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return run(dialog);
}

}  // namespace zephyne
