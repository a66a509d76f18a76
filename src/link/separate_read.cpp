#include "link/separate_read.h"

#include "link/line_notes.h"
#include "link/receiver_reader.h"
#include "memory/start_image.h"

namespace rqm5 {

TransferResult ReadSeparately(RadioLink& link, TransferObserver& observer, CloneImage& image)
{
    image = StartUpImage(0);
    NewImage(image);
    ReceiverReader reader(image, link, observer);
    const TransferResult result = reader.Read({});
    const std::vector<Message> unreadable = reader.Unreadable();
    if (result != TransferResult::Done || unreadable.empty())
        return result;
    observer.Message(UnreadableBlocks(unreadable));
    return TransferResult::Failed;
}

}  // namespace rqm5
