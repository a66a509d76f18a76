#pragma once

#include <string>
#include <string_view>

namespace rqm5 {

enum class Paint { None, Bold, Dim, Red, Green, Yellow };

/// The text in a colour of the terminal; as it is where there are no colours.
std::string Painted(std::string_view text, Paint paint, bool isPainted);

}  // namespace rqm5
