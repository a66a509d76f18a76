#pragma once

#include <string>
#include <string_view>

namespace rqm5 {

/// Finds out whether the replies of an operation have shifted, so that each is taken for the next command's.
///
/// Replies carry no address, but a receiver sends no more of them than it got commands. Once a reply was
/// missing, more replies than commands to one block prove that one of them belonged to an earlier block.
class ReplyWatch
{
  public:
    /// A reply was missing: from this block on replies may shift.
    void Begin() { isWatching_ = true; }
    bool IsWatching() const { return isWatching_; }

    /// What comes from here on belongs to another block.
    void NextBlock();

    void Sent() { ++commands_; }
    void Heard(std::string_view text) { heard_ += text; }

    /// Judges what was heard and begins anew. \return true when replies have shifted
    bool End();

  private:
    bool isWatching_ = false;
    bool hasShifted_ = false;
    int commands_ = 0;
    std::string heard_;
};

}  // namespace rqm5
