#pragma once

#include "image/clone_image.h"
#include "language/message.h"

namespace rqm5 {

// Insert and Delete move memory rows 0 to 199, which a table of another group does not show as a whole. What
// there is to say of them, from the image before; empty where the table shows just these rows.

Message InsertNote(const CloneImage& before, RowRange shown, int tableRow);
Message DeleteNote(const CloneImage& before, RowRange shown, int tableRow);

}  // namespace rqm5
