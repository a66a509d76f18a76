#include "files/rescue.h"

#include "files/recovery_file.h"
#include "image/display_text.h"

namespace rqm5 {

std::string Rescue(const CloneImage& image, const QString& meant)
{
    RecoveryFile file(StateFolder(), RecoveryFile::Work::Read);
    if (const auto problem = file.Keep(RecoveryText(image), {meant, {}}))
        return "What was read could not be kept elsewhere either: " + problem->details;
    return "What was read is kept in " + VisibleText(file.Path().toStdString()) +
           "; rq-m5-clone offers it at its next start.";
}

}  // namespace rqm5
