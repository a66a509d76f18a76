#include "files/rescue.h"

#include "files/recovery_file.h"
#include "image/display_text.h"

namespace rqm5 {

Message Rescue(const CloneImage& image, const QString& meant)
{
    RecoveryFile file(StateFolder(), RecoveryFile::Work::Read);
    if (const auto problem = file.Keep(RecoveryText(image), {meant, {}}))
        return {MESSAGE("What was read could not be kept elsewhere either: %1"), {problem->details}};
    return {MESSAGE("What was read is kept in %1; rq-m5-clone offers it at its next start."),
            {VisibleText(file.Path().toStdString())}};
}

}  // namespace rqm5
