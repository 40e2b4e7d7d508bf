#pragma once
// frmAbout: the program's icon, version, a description, the author and a
// disclaimer; closed by OK, Enter, Escape or its close box.

#include <QDialog>

namespace gw {

class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* parent = nullptr);

    // "Version " and the version numbers the build defines.
    static QString VersionLine();
};

}  // namespace gw
