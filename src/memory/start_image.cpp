#include "memory/start_image.h"

#include "image/fresh_image.h"
#include "settings/settings_codec.h"
#include "vfo/vfo_defaults.h"

namespace rqm5 {

CloneImage StartUpImage(int model)
{
    CloneImage image;
    image.Settings().model = model;
    BuildEmptyImage(image);
    ResetSettings(image);
    BuildVfoDefaults(image);
    return image;
}

void NewImage(CloneImage& image)
{
    ResetSettings(image);
    BuildVfoDefaults(image);
    ClearForNew(image);
}

}  // namespace rqm5
