#include "platform/desktop/desktop_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace zephyne {

void DesktopClipboard::set_text(const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

}  // namespace zephyne
