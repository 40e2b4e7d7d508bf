#pragma once
// The program's icon: a crest curve on its two tangents, drawn rather than shipped.

#include <QIcon>

namespace gw {

QIcon AppIcon();

}  // namespace gw
