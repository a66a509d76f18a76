#include "link/line_notes.h"

namespace rqm5 {
namespace {

Message NoteOf(int blocks, const char* one, const char* many)
{
    return blocks == 0 ? Message() : Counted(blocks, one, many);
}

}  // namespace

Message RepeatNote(int blocks)
{
    return NoteOf(blocks, MESSAGE("1 block needed more than one attempt"),
                  MESSAGE("%1 blocks needed more than one attempt"));
}

Message UnreadableNote(int blocks)
{
    return NoteOf(blocks, MESSAGE("1 block was read with characters that are no hex digits"),
                  MESSAGE("%1 blocks were read with characters that are no hex digits"));
}

Message OtherwiseNote(int blocks)
{
    return NoteOf(blocks, MESSAGE("1 block was different when it was read again"),
                  MESSAGE("%1 blocks were different when they were read again"));
}

Problem UnreadableBlocks(const std::vector<Message>& names)
{
    return {kCommunicationError,
            {MESSAGE("%1, the first of them: %2. Check the cable, then repeat the operation."),
             {UnreadableNote(static_cast<int>(names.size())), names.front()}}};
}

Problem ShiftedReplies()
{
    return {
        kCommunicationError,
        MESSAGE("Replies came late again and again, so that it cannot be told to which block each belongs. "
                "Check the cable and the receiver's battery, then read again.")};
}

Problem DoubtfulWrite()
{
    return {
        kCommunicationError,
        MESSAGE("All was sent, but replies came late, so that an OK may have been another block's. Verify "
                "what the receiver holds, or repeat the write.")};
}

Message NotReadTwice()
{
    return MESSAGE("All was read, but not all of it could be read again to compare.");
}

}  // namespace rqm5
