#include "qt/update_server.h"

#include <QtGlobal>

#include "qt/texts.h"

namespace orby {

std::string UpdateServer() { return FromQt(qEnvironmentVariable("ORBY_UPDATE_SERVER", ORBY_UPDATE_SERVER).trimmed()); }

}  // namespace orby
