#pragma once

#include <string_view>
#include <vector>

#include "image/clone_image.h"
#include "language/message.h"

namespace rqm5 {

/// The image that a clone file of this one reads back as, were its notes in their safe form.
CloneImage ReadBack(const CloneImage& image);

/// The rows whose notes differ from those that were read back.
std::vector<Message> LostNotes(const CloneImage& image, const CloneImage& readBack);

/// Everything but notes that reads back otherwise, one line a row: the format has no 1 kHz step for memory
/// rows and no offsets whose fraction begins with zeros. How cells are worded is in no file and not compared.
std::vector<Message> ChangedValues(const CloneImage& image, const CloneImage& readBack);

/// What the text of a clone file says that was loaded to something else: the same kinds of values.
/// \param loaded  the image that the text was read into
std::vector<Message> ValuesReadOtherwise(std::string_view text, const CloneImage& loaded);

}  // namespace rqm5
