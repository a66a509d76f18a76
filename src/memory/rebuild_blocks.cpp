#include "memory/rebuild_blocks.h"

#include "image/flag_bits.h"
#include "memory/bank_layout.h"
#include "settings/settings_codec.h"

namespace rqm5 {

void RebuildBlocks(CloneImage& image)
{
    EncodeSettings(image);
    EncodeExtraData(image);
    EncodeBankData(image);
    EncodeBankFlagData(image);
}

}  // namespace rqm5
