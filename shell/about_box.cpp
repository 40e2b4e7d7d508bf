#include "shell/about_box.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "shell/app_icon.h"
#include "ui/common/controls.h"
#include "ui/common/layout.h"

namespace gw {
namespace {

const char* const kDescription = "Description: Calculate highway curve information.";
const char* const kAuthor = "Written by the Gradewise developers.";
const char* const kDisclaimer =
    "Gradewise is a calculator, not a design.\n\n"
    "Every station, elevation, grade, sight distance and elevation it shows must be "
    "checked by a qualified engineer before it is used on a road. The program is provided "
    "as it is, without warranty of any kind; its authors accept no liability for designs "
    "made with it.\n\n"
    "The sight distances use the stopping and headlight sight distance formulas with "
    "the eye, object and headlight constants shown in the program; check them against the "
    "design policy that governs your project.";

}  // namespace

QString frmAbout::VersionLine() {
    return QStringLiteral("Version %1.%2.%3").arg(GW_VERSION_MAJOR).arg(GW_VERSION_MINOR).arg(GW_VERSION_REVISION);
}

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
    SetUpFixedDialog(*this, "frmAbout", QStringLiteral("About Gradewise"), Twips(0, 0, 5820, 3795).size());

    QPushButton* ok = &AddButton(*this, "cmdOK", QStringLiteral("OK"), Twips(3840, 3240, 1260, 345));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);  // Escape rejects: also closes

    QLabel& icon = AddLabel(*this, "picIcon", {}, Twips(240, 240, 540, 540));
    icon.setPixmap(AppIcon().pixmap(icon.size()));
    AddLabel(*this, "lblVersion", VersionLine(), Twips(1050, 180, 3885, 225));
    AddLabel(*this, "lblDescription", QString::fromLatin1(kDescription), Twips(1050, 525, 3885, 330));
    AddLabel(*this, "lblAuthor", QString::fromLatin1(kAuthor), Twips(1050, 1080, 3885, 330));

    auto* disclaimer = new QPlainTextEdit(QString::fromLatin1(kDisclaimer), this);
    disclaimer->setObjectName(QStringLiteral("txtDisclaimer"));
    disclaimer->setGeometry(Twips(240, 1560, 5295, 1575));
    disclaimer->setReadOnly(true);
    disclaimer->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    disclaimer->setFocusPolicy(Qt::ClickFocus);
    ok->setFocus();
}

}  // namespace gw
