#include "link/reply_watch.h"

#include <utility>

#include "link/reply_frames.h"

namespace rqm5 {

void ReplyWatch::NextBlock()
{
    // What comes before the first command answers an earlier operation and does not count.
    if (isWatching_ && commands_ > 0 && CountReplies(heard_) > commands_)
        hasShifted_ = true;
    commands_ = 0;
    heard_.clear();
}

bool ReplyWatch::End()
{
    NextBlock();
    isWatching_ = false;
    return std::exchange(hasShifted_, false);
}

}  // namespace rqm5
