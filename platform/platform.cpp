#include "platform.h"

#include <QStandardPaths>

#include "core/messages.h"

namespace gw {

QString UserSettingsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Gradewise/settings.ini");
}

void ShowRefusal(Platform& platform, QWidget* owner, const QString& text) {
    MessageRequest request;
    request.title = QString::fromUtf8(msg::kAppTitle.data(), int(msg::kAppTitle.size()));
    request.text = text;
    platform.ShowMessage(owner, request);
}

}  // namespace gw
