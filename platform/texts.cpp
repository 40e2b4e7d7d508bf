#include "platform/texts.h"

#include "core/messages.h"

namespace gw {

QString ToQString(std::string_view utf8) { return QString::fromUtf8(utf8.data(), qsizetype(utf8.size())); }

QString AppTitle() { return ToQString(msg::kAppTitle); }

}  // namespace gw
