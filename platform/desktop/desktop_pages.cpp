#include "platform/desktop/desktop_pages.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>

namespace zephyne {

void DesktopPages::open_page(const std::string& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(path.c_str())));
}

}  // namespace zephyne
