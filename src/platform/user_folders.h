#pragma once

#include <QString>

namespace rqm5 {

/// Where the programs keep what is no setting and no document: the user's state folder.
QString StateFolder();

}  // namespace rqm5
