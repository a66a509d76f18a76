#pragma once

#include <vector>

#include "image/problem.h"
#include "language/message.h"

namespace rqm5 {

/// "3 blocks needed more than one attempt"; empty for none.
Message RepeatNote(int blocks);

/// "2 blocks were read with characters that are no hex digits"; empty for none.
Message UnreadableNote(int blocks);

/// "2 blocks were different when they were read again"; empty for none.
Message OtherwiseNote(int blocks);

/// That a read cannot be relied on for these blocks, of which the first is named.
Problem UnreadableBlocks(const std::vector<Message>& names);

/// That the replies to a read cannot be told apart, however often it is repeated.
Problem ShiftedReplies();

/// That an OK of a write may have been another block's.
Problem DoubtfulWrite();

/// What a second read that breaks off means for the first one.
Message NotReadTwice();

}  // namespace rqm5
