#include "platform/platform.h"

#include <QStandardPaths>

#include "platform/texts.h"

namespace gw {

QString UserSettingsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Gradewise/settings.ini");
}

void ShowRefusal(Platform& platform, QWidget* owner, const QString& text) {
    MessageRequest request;
    request.title = AppTitle();
    request.text = text;
    platform.ShowMessage(owner, request);
}

}  // namespace gw
