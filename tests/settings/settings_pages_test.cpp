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
        Show(one_);
        Show(two_);
    }

    Settings1Page one_{document_, nullptr};
    Settings2Page two_{document_, nullptr};
};

TEST_F(SettingsPagesTest, EveryControlSetsItsOwnSettingAndShowsIt)
{
    // What one press does to the blocks of the default image: block, byte, value.
    const std::tuple<QWidget*, const char*, int, int, int> cases[] = {
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
        document_.Replace(StartUpImage(0), {});
        auto& control = Find<QAbstractButton>(*page, QLatin1String(name));
        const bool before = control.isChecked();
        QTest::keyClick(&control, Qt::Key_Space);
        EXPECT_TRUE(Steps() == 1 && document_.DataChanged()) << name;
        SettingsBlocks expected{DefaultSetData1(0), DefaultSetData2()};
        (block == 1 ? expected.SetData1 : expected.SetData2).SetByte(byte, value);
        EXPECT_EQ(SetData1(image_), expected.SetData1) << name;
        EXPECT_EQ(SetData2(image_), expected.SetData2) << name;
        // The blocks decode to what the control shows.
        CloneImage changed = StartUpImage(0);
        DecodeSettings(changed, expected);
        document_.Replace(StartUpImage(0), {});
        EXPECT_EQ(control.isChecked(), before) << name;
        document_.Replace(changed, {});
        EXPECT_EQ(control.isChecked(), !before) << name;
        EXPECT_TRUE(Steps() == 0 && !document_.DataChanged()) << "showing is no edit";
    }
}

TEST_F(SettingsPagesTest, SlidersSetTheirValueAndShowIt)
{
    const std::tuple<const char*, const char*, int ReceiverSettings::*, int> cases[] = {
        {"Slider1", "lblVol", &ReceiverSettings::volume, 50},
        {"Slider2", "lblSql", &ReceiverSettings::squelch, 9},
    };
    for (const auto& [name, labelName, setting, highest] : cases) {
        auto& slider = Find<QSlider>(one_, QLatin1String(name));
        const auto& label = Find<QLabel>(one_, QLatin1String(labelName));
        QTest::keyClick(&slider, Qt::Key_End);
        EXPECT_EQ(image_.Settings().*setting, highest);
        EXPECT_EQ(label.text(), QString::number(highest));
        document_.Absorb([setting = setting](CloneImage& image) { image.Settings().*setting = 2; });
        EXPECT_TRUE(slider.value() == 2 && label.text() == QStringLiteral("2")) << name;
    }
    EXPECT_EQ(Steps(), 2);
}

TEST_F(SettingsPagesTest, AnOptionThatNobodyCanChooseIsShownAndKept)
{
    document_.Absorb([](CloneImage& image) {
        image.Settings().operatingMode = ReceiverSettings::kNoOption;
        image.Settings().model = 4;
    });
    for (const char* mode : {"opbOpMode_0", "opbOpMode_1", "opbOpMode_11"})
        EXPECT_FALSE(Find<QRadioButton>(one_, QLatin1String(mode)).isChecked());
    const auto& sibling = Find<QRadioButton>(one_, QStringLiteral("opbModel_4"));
    EXPECT_TRUE(sibling.isChecked());
    EXPECT_FALSE(sibling.isEnabled());
    EXPECT_EQ(image_.Settings().model, 4);
}

TEST_F(SettingsPagesTest, TheVfoTableFollowsAndARegionChangeRebuildsNoRow)
{
    const auto& table = Find<QTableView>(one_, QStringLiteral("MSFlexGrid2"));
    QSignalSpy drawn(table.model(), &QAbstractItemModel::dataChanged);
    const CloneImage before = image_;
    Click(one_, "opbModel_2");
    EXPECT_EQ(drawn.count(), 1);
    EXPECT_EQ(table.model()->index(8, 0).data().toString(), QStringLiteral("-"));
    CloneImage expected = before;
    expected.Settings().model = 2;
    EXPECT_TRUE(image_ == expected);
    document_.Replace(StartUpImage(0), {});
    document_.Absorb([](CloneImage& image) { image.VFOData(3).mode = 2; });
    EXPECT_EQ(drawn.count(), 3);
}

}  // namespace
}  // namespace rqm5
