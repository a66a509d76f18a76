#include "memory/modify_dialog.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "memory/bank_layout.h"
#include "ui/page_test.h"

namespace rqm5 {
namespace {

class ModifyDialogTest : public PageTest
{
  protected:
    ModifyDialogTest()
    {
        Show(mainWindow_);
        PutChannel(0);
        for (const std::size_t row : {1100U, 1101U}) {
            image_.MemData[row][kFrequency] = static_cast<double>(row) - 1000;
            image_.MemText[row][kFrequency] = std::to_string(row - 1000) + ".000000";
            image_.MemEnable[row] = true;
        }
    }

    template <class Control>
    Control& Get(const char* name)
    {
        return Find<Control>(dialog_, QLatin1String(name));
    }
    QLineEdit& Frequency() { return Get<QLineEdit>("txtFreq"); }
    QLineEdit& Offset() { return Get<QLineEdit>("txtShift"); }
    void Type(QLineEdit& box, const char* text)
    {
        box.setFocus();
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_Backspace);
        QTest::keyClicks(&box, QLatin1String(text));
    }
    void PressEnter() { QTest::keyClick(&Frequency(), Qt::Key_Return); }

    /// Opens a memory row, does something in the dialog, and tells whether the row was stored.
    bool Memory(int row, const std::function<void()>& act, int selector = kSelectAll)
    {
        return Act(act).OpenMemory(row, selector);
    }
    bool Vfo(int row, const std::function<void()>& act) { return Act(act).OpenVfo(row); }
    dlgModify& Act(const std::function<void()>& act)
    {
        dialogs_.act = [act](QDialog& dialog) {
            Show(dialog);
            act();
        };
        return dialog_;
    }
    void ExpectLabels(const char* title, const char* channel, const char* range)
    {
        EXPECT_EQ(dialog_.windowTitle(), QLatin1String(title));
        EXPECT_EQ(Get<QLabel>("lblCH").text(), QLatin1String(channel));
        EXPECT_EQ(Get<QLabel>("lblMHz").text(), QLatin1String(range));
    }
    static void Leave(QLineEdit& box, const char* becomes)
    {
        QTest::keyClick(&box, Qt::Key_Tab);
        EXPECT_EQ(box.text(), QLatin1String(becomes));
    }
    static void Paste(QLineEdit& box, const char* text, const char* becomes)
    {
        QApplication::clipboard()->setText(QLatin1String(text));
        box.paste();
        EXPECT_EQ(box.text(), QLatin1String(becomes));
    }

    QWidget mainWindow_;
    dlgModify dialog_{image_, dialogs_, &mainWindow_};
};

TEST_F(ModifyDialogTest, ShowsWhatItEditsAndSelectsTheFrequency)
{
    const auto look = [this] {
        ExpectLabels("Modify Memory", "Bank 0  CH 0", "(0.1-1299.995MHz)");
        EXPECT_TRUE(Frequency().hasFocus() && Get<QCheckBox>("chkEnable").isChecked());
        EXPECT_EQ(Frequency().selectedText(), QStringLiteral("100.000000"));
    };
    EXPECT_FALSE(Memory(0, look, 0));
    Vfo(13, [this] {
        ExpectLabels("Modify VFO", "Band 13", "(960.000-1299.995MHz)");
        EXPECT_EQ(Get<QLabel>("lblMode").text(), QStringLiteral("VFO"));
        for (const char* box : {"chkSkip", "chkEnable", "chkHold"})
            EXPECT_FALSE(Get<QCheckBox>(box).isVisible());
    });
    image_.Settings.model = 2;
    EXPECT_FALSE(dialog_.OpenVfo(8));
    EXPECT_EQ(dialogs_.runs, 2);
}

TEST_F(ModifyDialogTest, NumberBoxesTakeDigitsAndOnePoint)
{
    Memory(0, [this] {
        for (QLineEdit* box : {&Frequency(), &Offset()}) {
            Type(*box, "12.3.4-e ");
            EXPECT_EQ(box->text(), QStringLiteral("12.34"));
            box->selectAll();
            QTest::keyClicks(box, QStringLiteral("."));
            EXPECT_EQ(box->text(), QStringLiteral("12.34"));  // it holds a point, selected or not
            box->setCursorPosition(0);
            Paste(*box, "9.9x", "9912.34");
            box->selectAll();
            Paste(*box, "9.9x", "9.9");
        }
    });
}

TEST_F(ModifyDialogTest, ListsHoldEveryCodeAndRegionsDisableWhatTheyLack)
{
    for (int region = 0; region < kRegions; ++region) {
        image_.Settings.model = region;
        Memory(0, [&] {
            EXPECT_EQ(Get<QComboBox>("cbbSec").isEnabled(), region == 1);
            EXPECT_EQ(Get<QComboBox>("cbbAir").isEnabled(), region == 0);
        });
    }
    EXPECT_EQ(Get<QComboBox>("cbbSec").count(), 17);
    EXPECT_EQ(Get<QComboBox>("cbbAir").itemText(27), QStringLiteral("3000Hz"));
    EXPECT_EQ(Get<QComboBox>("cbbAir").itemText(28), QStringLiteral("JR"));
    EXPECT_EQ(Get<QComboBox>("cbbTxTone").itemText(38), QStringLiteral("250.3Hz"));
}

TEST_F(ModifyDialogTest, LeavingABoxChecksIt)
{
    Memory(0, [this] {
        Type(Frequency(), "433.5");
        Leave(Frequency(), "433.500000");
        Type(Frequency(), "1299.996");
        Click(dialog_, "opbWave_1");
        EXPECT_EQ(Frequency().text(), QStringLiteral("100.000000"));
        Type(Offset(), "100");
        Leave(Offset(), "0");
    });
    EXPECT_TRUE(dialogs_.asked.empty());
}

TEST_F(ModifyDialogTest, CellularAndDuplicateFrequenciesBringTheirMessages)
{
    image_.Settings.model = 2;
    for (const char* text : {"824", "100"}) {
        const auto refused = [this, text] {
            Type(Frequency(), text);
            Leave(Frequency(), "101.000000");
        };
        Memory(1101, refused, kSelectSearchPass);
    }
    ASSERT_EQ(dialogs_.asked.size(), 2U);
    EXPECT_EQ(dialogs_.asked[0].title, QStringLiteral("Frequency of the cellular phone"));
    EXPECT_EQ(dialogs_.asked[0].text,
              QStringLiteral("It is a frequency of the cellular phone.\nIt is not possible to set it."));
    EXPECT_EQ(dialogs_.asked[1].title, QStringLiteral("ERROR"));
    EXPECT_EQ(dialogs_.asked[1].text,
              QStringLiteral("The same frequency as other channels cannot be set in Search Pass bank."));
    EXPECT_EQ(dialogs_.asked[1].icon, QMessageBox::Critical);
}

TEST_F(ModifyDialogTest, OkChecksTheBoxBeingTypedIntoFirst)
{
    const std::function<void()> confirm[] = {[this] { PressEnter(); },
                                             [this] { Click(dialog_, "OKButton"); }};
    for (const auto& ok : confirm) {
        PutChannel(0);
        EXPECT_TRUE(Memory(0, [&] {
            Type(Frequency(), "1300");
            ok();
            EXPECT_TRUE(dialog_.isVisible());  // refused: restored, and still open
            EXPECT_EQ(Frequency().text(), QStringLiteral("100.000000"));
            Type(Frequency(), "88.8");
            ok();
            EXPECT_FALSE(dialog_.isVisible());
        }));
        EXPECT_EQ(image_.MemText[0][kFrequency], "88.800000");
    }
}

TEST_F(ModifyDialogTest, CancelChangesNothingAndAsksNothing)
{
    image_.Settings.model = 2;
    const CloneImage before = image_;
    EXPECT_FALSE(Memory(0, [this] {
        Type(Frequency(), "830");
        Click(dialog_, "CancelButton");
    }));
    EXPECT_TRUE(SameContents(image_, before) && !image_.DataChanged && dialogs_.asked.empty());
}

TEST_F(ModifyDialogTest, OkStoresWhatTheControlsHold)
{
    EXPECT_TRUE(Memory(0, [this] {
        for (const char* control : {"opbWave_2", "opbStep_19", "opbTone_2", "opbSift_1", "chkSkip"})
            Click(dialog_, control);
        Get<QComboBox>("cbbAir").setCurrentIndex(28);
        Type(Offset(), "0.6");
        Type(Get<QLineEdit>("txtNote"), "a,b");
        EXPECT_TRUE(Get<QLabel>("lblNoteHint").isVisible());
        Click(dialog_, "OKButton");
    }));
    EXPECT_EQ(image_.MemData[0], (ChannelNumbers{100, 2, 19, 40, 0, 28, 0, 16, 0.6}));
    EXPECT_EQ(image_.MemText[0], (ChannelTexts{"100.000000", "WFM", "1KHz", "Carrier", "0", "JR", "67.0Hz",
                                               "+Shift", "0.600000", "a,b"}));
    EXPECT_TRUE(image_.DataChanged);
}

TEST_F(ModifyDialogTest, ARowOutsideItsBandCanBeEditedAsLongAsItsFrequencyStays)
{
    image_.Settings.model = 2;  // the stored rows are those of region 0: band 2 starts at 29 MHz here
    EXPECT_TRUE(Vfo(2, [this] {
        Click(dialog_, "opbWave_2");
        Frequency().setFocus();
        PressEnter();
    }));
    EXPECT_EQ(image_.VFOText[2][kFrequency], "1.625000");
    EXPECT_EQ(image_.VFOText[2][kMode], "WFM");
}

TEST_F(ModifyDialogTest, HoldStartsEmptyRowsWithTheLastConfirmedValues)
{
    EXPECT_TRUE(Memory(500, [this] {
        EXPECT_EQ(Frequency().text(), QString());
        PressEnter();
        EXPECT_EQ(Frequency().text(), QStringLiteral("145.000000"));  // an empty box is refused
        Type(Get<QLineEdit>("txtNote"), "held");
        Click(dialog_, "chkEnable");
        Click(dialog_, "chkHold");
        PressEnter();
    }));
    Memory(0, [this] { EXPECT_EQ(Get<QLineEdit>("txtNote").text(), QString()); });
    EXPECT_TRUE(Memory(501, [this] { PressEnter(); }));
    EXPECT_TRUE(image_.MemText[501] == image_.MemText[500] && image_.MemEnable[501]);
    Memory(502, [this] {
        Click(dialog_, "chkHold");
        Click(dialog_, "CancelButton");
    });
    Memory(502, [this] { EXPECT_EQ(Frequency().text(), QString()); });
}

}  // namespace
}  // namespace rqm5
