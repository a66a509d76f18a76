#include "app/read_option_items.h"

#include "app/receiver_window_fixture.h"

namespace rqm5 {
namespace {

class ReadOptionsTest : public ReceiverWindowTest
{
  protected:
    void SetUp() override
    {
        ReceiverWindowTest::SetUp();
        SaveReadTwice(false);
    }
    void TearDown() override
    {
        ReceiverWindowTest::TearDown();
        SaveReadTwice(false);
    }

    QString Note() { return StatusText("lblHint"); }
};

TEST_F(ReadOptionsTest, AreOffAtFirstAndRemembered)
{
    EXPECT_FALSE(Item("mnuReVerify").isChecked());
    Item("mnuReVerify").trigger();
    Start();
    EXPECT_TRUE(Item("mnuReVerify").isChecked());
    Item("mnuReVerify").trigger();
    Start();
    EXPECT_FALSE(Item("mnuReVerify").isChecked());
}

TEST_F(ReadOptionsTest, ReadTwiceAndNameWhatCameOtherwise)
{
    const auto read = [this](const char* fault) {
        dialogs_.asked.clear();
        receiver_.SetFaults({});
        if (*fault != '\0')
            receiver_.SetFaults({ParseFault(fault).value()});
        receiver_.ClearCommandLog();
        Item("mnuReSettings").trigger();
        return receiver_.CommandLog().size();
    };
    EXPECT_EQ(read("flip:1:after=5"), 16U);
    EXPECT_TRUE(dialogs_.asked.empty());
    Item("mnuReVerify").trigger();
    EXPECT_EQ(read(""), 32U);
    EXPECT_TRUE(Note().contains(QStringLiteral(" and verified: 1 VFO band changed."))) << qPrintable(Note());
    EXPECT_EQ(read("flip:1:after=5"), 32U);
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].details, QStringLiteral("VFO 3"));
    EXPECT_TRUE(dialogs_.asked[0].text.startsWith(QStringLiteral("1 block was different")));
}

TEST_F(ReadOptionsTest, TheClosingNoteTellsOfRepeatedAndUnreadableBlocks)
{
    receiver_.SetFaults({ParseFault("garble:2:after=3").value(), ParseFault("garble:1:after=7").value()});
    Item("mnuReSettings").trigger();
    EXPECT_TRUE(Note().endsWith(QStringLiteral("changed. 2 blocks needed more than one attempt.")));
    EXPECT_TRUE(dialogs_.asked.empty());

    receiver_.SetFaults({ParseFault("smear:1:after=3").value()});
    Item("mnuReSettings").trigger();
    EXPECT_TRUE(dialogs_.asked.empty()) << "it came right when it was asked for again";

    ReceiverMemory memory = receiver_.Memory();
    memory.At(0x0C50) = MemoryBlock("no hex digits");
    receiver_.SetMemory(memory);
    Item("mnuReSettings").trigger();
    EXPECT_TRUE(
        Note().endsWith(QStringLiteral("1 block was read with characters that are no hex digits: VFO 5.")))
        << qPrintable(Note());
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].details, QStringLiteral("VFO 5"));
    EXPECT_EQ(dialogs_.asked[0].icon, QMessageBox::Warning);
}

}  // namespace
}  // namespace rqm5
