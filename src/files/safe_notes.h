#pragma once

#include <string>

#include "image/clone_image.h"

namespace rqm5 {

/// True when a clone file brings a note back as it is: without a comma, not between quotes, on one line.
bool NoteSurvives(const std::string& note);

/// A note in the form that every clone file brings back: semicolons for commas, and for quotes at the start
/// apostrophes. One that survives stays as it is.
std::string SafeNote(std::string note);

CloneImage WithSafeNotes(CloneImage image);

}  // namespace rqm5
