#pragma once
// What the close question needs of the file commands, which sit above the curve
// windows: the save dialog and the writer.

#include <QString>

namespace gw {

class CurveSaver {
public:
    virtual ~CurveSaver() = default;
    // The chosen path, or the empty text when the user cancelled.
    virtual QString ShowSaveAsDialog(const QString& initialName) = 0;
    // Writes the active curve window; on success it takes `newTitle` and is unchanged.
    virtual void WriteCurveFile(const QString& path, const QString& newTitle) = 0;
};

}  // namespace gw
