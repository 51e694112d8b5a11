#include "platform/desktop/desktop_file_manager.h"

#include <QByteArray>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QObject>
#include <QUrl>

namespace zephyne {
namespace {

// Names are bytes, so that the address is made of bytes too.
QByteArray address_of(const std::string& folder) {
    return "file://" + QByteArray::fromStdString(folder).toPercentEncoding("/");
}

}  // namespace

void DesktopFileManager::open_folder(const std::string& folder) {
    const QByteArray address = address_of(folder);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        QDesktopServices::openUrl(QUrl::fromEncoded(address));
        return;
    }
    const QString service = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/FileManager1"),
                                       service, QStringLiteral("ShowFolders"));
    call << QStringList{QString::fromLatin1(address)} << QString();
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(call));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, address] {
        if (answer->isError()) QDesktopServices::openUrl(QUrl::fromEncoded(address));
        answer->deleteLater();
    });
}

}  // namespace zephyne
