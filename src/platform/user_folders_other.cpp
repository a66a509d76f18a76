#include <QStandardPaths>

#include "platform/plain_settings.h"
#include "platform/user_folders.h"

namespace rqm5 {

QString StateFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

// Settings are no files of the user's here, or lie where nobody makes a pipe.
void PassOverSettingsThatAreNoFiles() {}

}  // namespace rqm5
