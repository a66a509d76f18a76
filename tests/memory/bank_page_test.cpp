#include "memory/bank_page.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <tuple>

#include "ui/page_test.h"

namespace rqm5 {
namespace {

class BankPageTest : public PageTest
{
  protected:
    BankPageTest()
    {
        Show(page_);
        Box(0).setFocus();
    }

    QLineEdit& Box(int bank) { return Find<QLineEdit>(page_, QStringLiteral("txtBank_%1").arg(bank)); }
    void Enter(int bank, const char* text)
    {
        Box(bank).setFocus();
        Box(bank).selectAll();
        QTest::keyClicks(&Box(bank), QLatin1String(text));
        QTest::keyClick(&Box(bank), Qt::Key_Tab);
    }

    BankPage page_{document_, dialogs_, nullptr};
};

TEST_F(BankPageTest, EnterAndArrowsMoveBetweenTheBoxesAndSelectTheText)
{
    const std::tuple<int, Qt::Key, Qt::KeyboardModifier, int> cases[] = {
        {0, Qt::Key_Return, Qt::NoModifier, 1}, {1, Qt::Key_Enter, Qt::KeypadModifier, 2},
        {2, Qt::Key_Down, Qt::NoModifier, 3},   {3, Qt::Key_Up, Qt::NoModifier, 2},
        {0, Qt::Key_Up, Qt::NoModifier, 0},     {49, Qt::Key_Return, Qt::NoModifier, 49},
        {49, Qt::Key_Down, Qt::NoModifier, 49}, {5, Qt::Key_Down, Qt::ShiftModifier, 5},
    };
    for (const auto& [from, key, modifier, to] : cases) {
        Box(from).setFocus();
        QTest::keyClick(&Box(from), key, modifier);
        EXPECT_TRUE(Box(to).hasFocus()) << from << " key " << key;
        EXPECT_TRUE(from == to || Box(to).selectedText() == Box(to).text()) << to;
    }
    QTest::mouseClick(&Box(7), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Box(7).selectedText() == QStringLiteral("70"); }));
}

TEST_F(BankPageTest, OnlyDigitsArriveTypedOrPasted)
{
    QTest::keyClicks(&Box(0), QStringLiteral("x-"));
    EXPECT_EQ(Box(0).selectedText(), QStringLiteral("200"));  // a refused key does not replace the selection
    QTest::keyClicks(&Box(0), QStringLiteral("1a.2"));
    QApplication::clipboard()->setText(QStringLiteral("x4 5"));
    Box(0).setCursorPosition(1);
    Box(0).paste();
    EXPECT_EQ(Box(0).text(), QStringLiteral("1452"));
}

TEST_F(BankPageTest, SizesAreTakenRefusedSilentlyOrRefusedWithTheMessage)
{
    for (const auto& [text, questions] : {std::pair("1001", 0U), std::pair("201", 1U)}) {
        Enter(0, text);
        EXPECT_EQ(Box(0).text(), QStringLiteral("200"));
        ASSERT_EQ(dialogs_.asked.size(), questions) << text;
    }
    EXPECT_EQ(dialogs_.asked[0].title, QStringLiteral("ERROR"));
    EXPECT_EQ(dialogs_.asked[0].text,
              QStringLiteral("The total of the number of channels exceeds 1000.\n"
                             "Please set for the total of the channel to become 1000 or less."));
    EXPECT_EQ(dialogs_.asked[0].icon, QMessageBox::Critical);
    EXPECT_TRUE(Steps() == 0 && !document_.DataChanged());

    Enter(1, "007");
    EXPECT_EQ(Box(1).text(), QStringLiteral("7"));
    EXPECT_EQ(image_.BankSize(1), 7);
    EXPECT_EQ(Find<QLabel>(page_, QStringLiteral("lblChannels")).text(), QStringLiteral("857"));
    Enter(1, "7");
    EXPECT_TRUE(Steps() == 1 && document_.DataChanged()) << "what stands there already is no edit";
}

TEST_F(BankPageTest, LinksGoIntoTheImageAndTheLastSixStayHidden)
{
    QSignalSpy told(&document_, &Document::StateChanged);
    Click(page_, "chkLink_49");
    EXPECT_TRUE(image_.BankLink(49) && document_.DataChanged());
    EXPECT_EQ(told.count(), 1);
    document_.Absorb([](CloneImage& image) { image.SetBankLink(55, true); });
    const auto& hidden = Find<QCheckBox>(page_, QStringLiteral("chkLink_55"));
    EXPECT_TRUE(hidden.isChecked() && !hidden.isVisible());
}

TEST_F(BankPageTest, ShowsWhatChangesElsewhere)
{
    auto& total = Find<QLabel>(page_, QStringLiteral("lblChannels"));
    const auto& link = Find<QCheckBox>(page_, QStringLiteral("chkLink_3"));
    document_.Edit({}, [](CloneImage& image) {
        image.SetBankSize(0, 100);
        image.SetBankSize(49, 12);
        image.SetBankLink(3, true);
    });
    EXPECT_EQ(Box(49).text(), QStringLiteral("12"));
    EXPECT_EQ(total.text(), QStringLiteral("912"));
    EXPECT_TRUE(link.isChecked());
    document_.Replace(CloneImage{}, {});
    EXPECT_TRUE(Box(49).text() == QStringLiteral("0") && total.text() == QStringLiteral("0"));
    EXPECT_FALSE(link.isChecked());
}

TEST_F(BankPageTest, OffersToMoveChannelsThatASizePutsIntoAnotherBank)
{
    PutChannels({0, 300}, 100);
    auto& offer = Find<QWidget>(page_, QStringLiteral("frmBankMove"));
    const auto& text = Find<QLabel>(page_, QStringLiteral("lblBankMove"));
    const auto row = [this](int index) { return image_.MemText(index, kFrequency); };
    Enter(9, "40");
    EXPECT_FALSE(offer.isVisible()) << "no bank behind it";
    Enter(0, "190");
    ASSERT_TRUE(offer.isVisible());
    EXPECT_EQ(text.text().toStdString(),
              "Channels that change their bank with these sizes: 10. Others that change their number: 100.");
    EXPECT_EQ(row(190), "290.000000") << "the rows stay where they are";
    Enter(1, "160");
    EXPECT_TRUE(offer.isVisible()) << "two sizes, one plan";
    Click(page_, "cmbBankMove");
    EXPECT_FALSE(offer.isVisible());
    EXPECT_EQ(Steps(), 4);
    EXPECT_EQ(row(190), "300.000000");
    EXPECT_EQ(row(990), "290.000000") << "what bank 0 has no room for";
    document_.History().undo();
    EXPECT_EQ(row(190), "290.000000");

    Enter(0, "195");
    ASSERT_TRUE(offer.isVisible());
    EXPECT_EQ(text.text().toStdString(),
              "Channels that change their bank with these sizes: 5. Others that change their number: 105.");
    Click(page_, "cmbBankLeave");
    EXPECT_FALSE(offer.isVisible());
    Enter(0, "194");
    EXPECT_EQ(text.text().toStdString(),
              "Channels that change their bank with these sizes: 1. Others that change their number: 105.");
    document_.History().undo();
    EXPECT_FALSE(offer.isVisible());
}

TEST_F(BankPageTest, BarsAndTheLastLineTellWhatBanksHold)
{
    const auto fill = [this](int bank) {
        return Find<QWidget>(page_, QStringLiteral("barFill_%1").arg(bank)).toolTip().toStdString();
    };
    PutChannels({0, 201}, 100);
    PutChannels({999, 1}, 100);
    EXPECT_EQ(fill(0), "200 of 200 rows hold a channel");
    EXPECT_EQ(fill(1), "1 of 150 rows hold a channel");
    EXPECT_EQ(fill(10), "no rows");
    Enter(9, "40");
    EXPECT_EQ(Find<QLabel>(page_, QStringLiteral("lblNoBank")).text().toStdString(),
              "In no bank: 10 rows, 1 with a channel");
    auto& bar = Find<QWidget>(page_, QStringLiteral("barFill_1"));
    const QImage before = bar.grab().toImage();
    PutChannels({200, 100}, 100);
    EXPECT_NE(bar.grab().toImage(), before);
}

}  // namespace
}  // namespace rqm5
