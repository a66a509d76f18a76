#pragma once

#include <QString>

#include "image/clone_image.h"

namespace rqm5 {

// Insert and Delete move memory rows 0 to 199, which a table of another group does not show as a whole. What
// there is to say of them, from the image before; empty where the table shows just these rows.

QString InsertNote(const CloneImage& before, RowRange shown, int tableRow);
QString DeleteNote(const CloneImage& before, RowRange shown, int tableRow);

}  // namespace rqm5
