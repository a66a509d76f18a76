#pragma once

#include "image/clone_image.h"

namespace rqm5 {

/// ExtraData into MemEnable: 1280 bits, most significant bit first, of which 1240 are rows.
void DecodeExtraData(CloneImage& image);

/// MemEnable into ExtraData; the last 40 bits are 0.
void EncodeExtraData(CloneImage& image);

/// BankFlagData into BankLink: the first 14 hex digits are 56 bits.
void DecodeBankFlagData(CloneImage& image);

/// BankLink into BankFlagData, filled up with "F".
void EncodeBankFlagData(CloneImage& image);

}  // namespace rqm5
