#include "link/receiver_identity.h"

#include <gtest/gtest.h>

#include "settings/settings_codec.h"

namespace rqm5 {
namespace {

const QString kHere = QStringLiteral("/dev/here");
const QString kThere = QStringLiteral("/dev/there");

TEST(ReceiverIdentity, IsWhatTheReceiverTellsAndNotWhatWasWritten)
{
    ReceiverIdentity receiver;
    EXPECT_EQ(receiver.Model(kHere), std::nullopt);
    receiver.Read(MemoryBlock(std::string(32, 'F')), kHere);
    receiver.Read(MemoryBlock("A506"), kHere);
    EXPECT_EQ(receiver.Model(kHere), std::nullopt) << "no settings block, and no known model";
    receiver.Read(DefaultSetData1(1), kHere);
    EXPECT_EQ(receiver.Model(kHere), 1);
    EXPECT_EQ(receiver.Model(kThere), std::nullopt) << "another port may have another receiver";

    receiver.Written(0, kHere);
    receiver.Read(DefaultSetData1(0), kHere);
    EXPECT_EQ(receiver.Model(kHere), 1) << "this is what was written";
    receiver.Read(DefaultSetData1(2), kHere);
    EXPECT_EQ(receiver.Model(kHere), 2) << "this is not";
    receiver.Read(DefaultSetData1(0), kHere);
    EXPECT_EQ(receiver.Model(kHere), 0) << "a third receiver";

    receiver.Written(3, kThere);
    receiver.Read(DefaultSetData1(3), kThere);
    EXPECT_EQ(receiver.Model(kThere), std::nullopt);
    EXPECT_EQ(OtherModelText(1, 7), "The receiver is an RQ-M5 E, and what is to be written is for an ?.");
}

}  // namespace
}  // namespace rqm5
