#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <QTableView>
#include <tuple>

#include "settings/settings1_page.h"
#include "settings/settings2_page.h"
#include "settings/settings_codec.h"
#include "ui/page_test.h"

namespace rqm5 {
namespace {

class SettingsPagesTest : public PageTest
{
  protected:
    SettingsPagesTest()
    {
        QObject::connect(&one_, &Settings1Page::Edited, [this] { ++edits_; });
        QObject::connect(&two_, &Settings2Page::Edited, [this] { ++edits_; });
        Show(one_);
        Show(two_);
    }

    void ShowImage(const CloneImage& image)
    {
        image_ = image;
        one_.ShowSettings();
        two_.ShowSettings();
    }

    Settings1Page one_{image_, dialogs_, nullptr};
    Settings2Page two_{image_, dialogs_, nullptr};
    int edits_ = 0;
};

TEST_F(SettingsPagesTest, EveryControlSetsItsOwnSettingAndShowsIt)
{
    // What one press does to the blocks of the default image: block, byte, value.
    const std::tuple<QWidget*, const char*, int, std::size_t, int> cases[] = {
        // clang-format off
        {&one_, "opbModel_1", 1, 1, 0x01}, {&one_, "opbOpMode_1", 1, 4, 0x01}, {&one_, "opbOpMode_11", 1, 4, 0x0B},
        {&one_, "opbScanMode_1", 2, 9, 0x63}, {&two_, "optLamp_2", 2, 4, 0x02}, {&two_, "opbAPO_3", 2, 5, 0x03},
        {&two_, "opbBug_4", 2, 6, 0x04}, {&two_, "opbKeyFunc_1", 2, 10, 0x20}, {&two_, "opbMONI_1", 2, 10, 0x10},
        {&two_, "chkBS", 2, 3, 0x00}, {&two_, "chkKey", 2, 8, 0xC8}, {&two_, "chkWP", 2, 8, 0x08},
        {&two_, "chkEar", 2, 8, 0x58}, {&two_, "chkBeep", 2, 8, 0x40}, {&two_, "chkATT", 2, 8, 0x4A},
        {&two_, "chkBell", 2, 8, 0x49}, {&two_, "chkAutoStep", 2, 9, 0x03}, {&two_, "chkBarSW", 2, 9, 0x21},
        {&two_, "chkBarAM", 2, 9, 0x22},
        // clang-format on
    };
    for (const auto& [page, name, block, byte, value] : cases) {
        ShowImage(StartUpImage(0));
        edits_ = 0;
        auto& control = Find<QAbstractButton>(*page, QLatin1String(name));
        const bool before = control.isChecked();
        QTest::keyClick(&control, Qt::Key_Space);
        EXPECT_TRUE(edits_ == 1 && image_.DataChanged) << name;
        CloneImage changed = image_;
        EncodeSettings(changed);
        MemoryBlock expected[] = {DefaultSetData1(0), DefaultSetData2()};
        expected[block - 1].SetByte(byte, value);
        EXPECT_EQ(changed.SetData1, expected[0]) << name;
        EXPECT_EQ(changed.SetData2, expected[1]) << name;
        // The blocks decode to what the control shows.
        changed.DataChanged = false;
        DecodeSettings(changed);
        ShowImage(StartUpImage(0));
        EXPECT_EQ(control.isChecked(), before) << name;
        ShowImage(changed);
        EXPECT_EQ(control.isChecked(), !before) << name;
        EXPECT_TRUE(edits_ == 1 && !image_.DataChanged) << "showing is no edit";
    }
}

TEST_F(SettingsPagesTest, SlidersSetTheirValueAndShowIt)
{
    auto& volume = Find<QSlider>(one_, QStringLiteral("Slider1"));
    QTest::keyClick(&volume, Qt::Key_End);
    EXPECT_EQ(image_.Settings.volume, 50);
    EXPECT_EQ(Find<QLabel>(one_, QStringLiteral("lblVol")).text(), QStringLiteral("50"));
    QTest::keyClick(&Find<QSlider>(one_, QStringLiteral("Slider2")), Qt::Key_End);
    EXPECT_EQ(image_.Settings.squelch, 9);
    EXPECT_EQ(edits_, 2);
}

TEST_F(SettingsPagesTest, AnOptionThatNobodyCanChooseIsShownAndKept)
{
    image_.Settings.operatingMode = ReceiverSettings::kNoOption;
    image_.Settings.model = 4;
    one_.ShowSettings();
    for (const char* mode : {"opbOpMode_0", "opbOpMode_1", "opbOpMode_11"})
        EXPECT_FALSE(Find<QRadioButton>(one_, QLatin1String(mode)).isChecked());
    const auto& sibling = Find<QRadioButton>(one_, QStringLiteral("opbModel_4"));
    EXPECT_TRUE(sibling.isChecked());
    EXPECT_FALSE(sibling.isEnabled());
    EXPECT_EQ(image_.Settings.model, 4);
}

TEST_F(SettingsPagesTest, ARegionChangeRedrawsTheVfoTableAndRebuildsNoRow)
{
    QSignalSpy region(&one_, &Settings1Page::RegionChanged);
    const auto rows = image_.VFOText;
    Click(one_, "opbModel_2");
    EXPECT_EQ(region.count(), 1);
    EXPECT_EQ(image_.VFOText, rows);
    const auto& table = Find<QTableView>(one_, QStringLiteral("MSFlexGrid2"));
    EXPECT_EQ(table.model()->index(8, 0).data().toString(), QStringLiteral("-"));
}

}  // namespace
}  // namespace rqm5
