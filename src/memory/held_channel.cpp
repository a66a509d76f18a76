#include "memory/held_channel.h"

#include "image/channel_block.h"

namespace rqm5 {

Channel HeldChannel(const Channel& channel, RowKind kind)
{
    Channel held = channel;
    static_cast<ChannelContents&>(held) =
        DecodeBlock(EncodeChannel(channel), kind).value_or(ChannelContents());
    return held;
}

}  // namespace rqm5
