#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace rqm5 {

/// What the system knows of an encoding that is not UTF-8.
class TextConverter
{
  public:
    virtual ~TextConverter() = default;

    /// Appends as UTF-8 what it understands and takes that off the front of the bytes.
    /// \return false when it stopped at bytes that are no character
    virtual bool Convert(std::string_view& bytes, std::string& result) = 0;
};

/// \param encoding  its usual name, such as "CP932" or "WINDOWS-1252"
/// \return nothing when the system does not know it
std::unique_ptr<TextConverter> ConverterFrom(const std::string& encoding);

}  // namespace rqm5
