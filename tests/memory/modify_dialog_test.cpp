#include "memory/modify_dialog.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "image/row_texts.h"
#include "ui/page_test.h"

namespace rqm5 {
namespace {

class ModifyDialogTest : public PageTest
{
  protected:
    ModifyDialogTest()
    {
        Show(mainWindow_);
        PutChannels({0, 1}, 100);
        PutChannels({1100, 2}, 100);
    }

    template <class Control>
    Control& Get(const char* name)
    {
        return Find<Control>(dialog_, QLatin1String(name));
    }
    QLineEdit& Frequency() { return Get<QLineEdit>("txtFreq"); }
    void Type(QLineEdit& box, const char* text)
    {
        box.setFocus();
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_Backspace);
        QTest::keyClicks(&box, QLatin1String(text));
    }
    void PressEnter() { QTest::keyClick(&Frequency(), Qt::Key_Return); }

    /// Opens a memory row, does something in the dialog, and tells whether the row was stored.
    bool Memory(int row, const std::function<void()>& act) { return Act(act).OpenMemory(row, kSelectAll); }
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

    QWidget mainWindow_;
    dlgModify dialog_{document_, dialogs_, &mainWindow_};
};

TEST_F(ModifyDialogTest, ShowsWhatItEditsAndSelectsTheFrequency)
{
    const auto look = [this] {
        ExpectLabels("Modify Memory", "Bank 0  CH 0", "(0.1-1299.995MHz)");
        EXPECT_EQ(Frequency().selectedText(), QStringLiteral("100.000000"));
    };
    Act(look).OpenMemory(0, 0);
    Vfo(13, [this] { ExpectLabels("Modify VFO", "Band 13", "(960.000-1299.995MHz)"); });
    SetModel(2);
    EXPECT_FALSE(dialog_.OpenVfo(8));
    EXPECT_EQ(dialogs_.runs, 2);
}

TEST_F(ModifyDialogTest, OffersWhatTheRegionHas)
{
    for (int region = 0; region < kRegions; ++region) {
        SetModel(region);
        Memory(0, [this, region] {
            for (const char* secret : {"cbbSec", "opbTone_1"})
                EXPECT_EQ(Get<QWidget>(secret).isEnabled(), region == 1) << region << secret;
            for (const char* carrier : {"cbbAir", "opbTone_2"})
                EXPECT_EQ(Get<QWidget>(carrier).isEnabled(), region == 0) << region << carrier;
        });
    }
}

TEST_F(ModifyDialogTest, TabReachesAGroupWhoseChoiceTheRegionLacks)
{
    // A secret code, which the first region does not have.
    document_.Absorb([](CloneImage& image) { image.MemData(0).option = 16; });
    Memory(0, [this] {
        bool isReached = false;
        for (int i = 0; i < 12 && !isReached; ++i) {
            QTest::keyClick(dialog_.focusWidget(), Qt::Key_Tab);
            isReached = dialog_.focusWidget()->objectName().startsWith(QStringLiteral("opbTone_"));
        }
        EXPECT_TRUE(isReached);
    });
}

TEST_F(ModifyDialogTest, TabFollowsTheEye)
{
    const std::string order =
        "txtFreq opbWave_0 opbStep_1 opbTone_0 cbbAir cbbTxTone opbSift_0 txtShift txtNote chkSkip chkEnable "
        "chkHold "
        "NextButton OKButton OKNextButton CancelButton txtFreq ";
    document_.Absorb([](CloneImage& image) { image.MemData(0).step = 1; });
    Memory(0, [&] {
        std::string reached;
        while (reached.size() < order.size()) {
            reached += dialog_.focusWidget()->objectName().toStdString() + ' ';
            QTest::keyClick(dialog_.focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(reached, order);
    });
}

TEST_F(ModifyDialogTest, AFrequencyTypedIntoAnEmptyRowEnablesItUnlessTheUserDecides)
{
    auto& enable = Get<QCheckBox>("chkEnable");
    EXPECT_TRUE(Memory(500, [&] {
        EXPECT_FALSE(enable.isChecked());
        Type(Frequency(), "88.8");
        EXPECT_TRUE(enable.isChecked());
        QTest::keyClick(&Frequency(), Qt::Key_Return);
    }));
    EXPECT_TRUE(image_.MemEnable(500));
    EXPECT_TRUE(Memory(501, [&] {
        Click(dialog_, "chkEnable");
        Click(dialog_, "chkEnable");
        Type(Frequency(), "88.9");
        EXPECT_FALSE(enable.isChecked()) << "the user has set it";
        PressEnter();
    }));
    EXPECT_FALSE(image_.MemEnable(501));
    Memory(501, [&] {
        Type(Frequency(), "90");
        EXPECT_FALSE(enable.isChecked()) << "a channel that is off stays off";
        Click(dialog_, "CancelButton");
    });
    EXPECT_FALSE(Vfo(3, [&] { Type(Frequency(), "8"); }));
}

TEST_F(ModifyDialogTest, AnythingRefusedKeepsTheDialogOpen)
{
    SetModel(2);
    Memory(0, [this] {
        Type(Get<QLineEdit>("txtShift"), "100");
        PressEnter();
        EXPECT_TRUE(dialog_.isVisible() && Get<QLineEdit>("txtShift").hasFocus());
        EXPECT_EQ(Get<QLineEdit>("txtShift").text(), QStringLiteral("0"));
        Type(Frequency(), "830");
        auto& wave = Get<QAbstractButton>("opbWave_2");
        QTest::mousePress(&wave, Qt::LeftButton, {}, {8, wave.height() / 2});
        QCoreApplication::processEvents();
        EXPECT_TRUE(dialogs_.asked.size() == 1 && !wave.isDown()) << "the message took the release";
    });
}

TEST_F(ModifyDialogTest, ALongNoteFromAFileStaysWhole)
{
    const std::string note(300, 'n');
    document_.Absorb([&](CloneImage& image) { image.MemData(0).note = note; });
    EXPECT_TRUE(Memory(0, [this] { PressEnter(); }));
    EXPECT_EQ(image_.MemText(0, kNote), note);
}

TEST_F(ModifyDialogTest, AnOkThatChangesNothingIsAnUnsavedChangeButNoStep)
{
    EXPECT_TRUE(Memory(0, [this] { PressEnter(); }));
    EXPECT_TRUE(Steps() == 0 && document_.DataChanged());
}

TEST_F(ModifyDialogTest, NumberBoxesTakeDigitsAndOnePoint)
{
    Memory(0, [this] {
        Type(Frequency(), "12.3.4-e ");
        EXPECT_EQ(Frequency().text(), QStringLiteral("12.34"));
        QApplication::clipboard()->setText(QStringLiteral("9.9x"));
        Frequency().setCursorPosition(0);
        Frequency().paste();
        EXPECT_EQ(Frequency().text(), QStringLiteral("9912.34"));
    });
}

TEST_F(ModifyDialogTest, CellularAndDuplicateFrequenciesBringTheirMessages)
{
    SetModel(2);
    for (const char* text : {"824", "100"}) {
        const auto enter = [this, text] {
            Type(Frequency(), text);
            QTest::keyClick(&Frequency(), Qt::Key_Tab);
            EXPECT_EQ(Frequency().text(), QStringLiteral("101.000000"));
        };
        Act(enter).OpenMemory(1101, kSelectSearchPass);
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
    EXPECT_TRUE(Memory(0, [this] {
        Type(Frequency(), "1300");
        PressEnter();
        EXPECT_TRUE(dialog_.isVisible());  // refused: restored, and still open
        EXPECT_EQ(Frequency().text(), QStringLiteral("100.000000"));
        Type(Frequency(), "88.8");
        Click(dialog_, "OKButton");
        EXPECT_FALSE(dialog_.isVisible());
    }));
    EXPECT_EQ(image_.MemText(0, kFrequency), "88.800000");
}

TEST_F(ModifyDialogTest, CancelChangesNothingAndAsksNothing)
{
    SetModel(2);
    const CloneImage before = image_;
    EXPECT_FALSE(Memory(0, [this] {
        Type(Frequency(), "830");
        Click(dialog_, "CancelButton");
    }));
    EXPECT_TRUE(image_ == before && !document_.DataChanged() && dialogs_.asked.empty());
}

TEST_F(ModifyDialogTest, TheFileSafeFormOfANoteIsOfferedAndTheChoiceRemembered)
{
    const auto note = [this] { return Get<QLineEdit>("txtNote").text(); };
    Memory(0, [&] {
        Type(Get<QLineEdit>("txtNote"), "a,b");
        EXPECT_EQ(note(), QStringLiteral("a,b"));
        Click(dialog_, "cmbSafeNote");
        EXPECT_EQ(note(), QStringLiteral("a;b"));
        QTest::keyClicks(&Get<QLineEdit>("txtNote"), QStringLiteral(",c"));
        EXPECT_EQ(note(), QStringLiteral("a;b;c")) << "the cursor stays where it is";
        Type(Get<QLineEdit>("txtNote"), "\"q\"");
        EXPECT_EQ(note(), QStringLiteral("'q'"));
        QApplication::clipboard()->setText(QStringLiteral("x, y"));
        Get<QLineEdit>("txtNote").selectAll();
        Get<QLineEdit>("txtNote").paste();
        EXPECT_EQ(note(), QStringLiteral("x; y"));
        EXPECT_TRUE(Get<QLabel>("lblNoteHint").isVisible()) << "what was replaced is said";
    });
    EXPECT_TRUE(Find<QPushButton>(*std::make_unique<dlgModify>(document_, dialogs_, &mainWindow_),
                                  QStringLiteral("cmbSafeNote"))
                    .isChecked());
    Memory(0, [&] {
        EXPECT_FALSE(Get<QLabel>("lblNoteHint").isVisible());
        Type(Get<QLineEdit>("txtNote"), "a,");
        Click(dialog_, "cmbSafeNote");
        Type(Get<QLineEdit>("txtNote"), "a,b");
        EXPECT_EQ(note(), QStringLiteral("a,b")) << "the choice was taken back";
    });
}

TEST_F(ModifyDialogTest, OkStoresWhatTheControlsHold)
{
    EXPECT_TRUE(Memory(0, [this] {
        for (const char* control : {"opbWave_2", "opbStep_19", "opbTone_2", "opbSift_1", "chkSkip"})
            Click(dialog_, control);
        Get<QComboBox>("cbbAir").setCurrentIndex(28);
        Type(Get<QLineEdit>("txtShift"), "0.6");
        Type(Get<QLineEdit>("txtNote"), "a,b");
        EXPECT_TRUE(Get<QLabel>("lblNoteHint").isVisible());
        Type(Get<QLineEdit>("txtNote"), "5\" rod");
        EXPECT_FALSE(Get<QLabel>("lblNoteHint").isVisible()) << "such quotes come back";
        Type(Get<QLineEdit>("txtNote"), "a,b");
        Click(dialog_, "OKButton");
    }));
    const Channel& row = image_.MemData(0);
    EXPECT_EQ(TextsOf(row), (std::vector<std::string>{"100.000000", "WFM", "1KHz", "Carrier", "0", "JR",
                                                      "67.0Hz", "+Shift", "0.600000", "a,b"}));
    EXPECT_TRUE(row.carrier == 28 && row.IsSkipped() && row.enabled);
    EXPECT_EQ(document_.History().undoText(), QStringLiteral("Modify (Bank 0 CH 0)"));
    EXPECT_TRUE(document_.DataChanged());
}

TEST_F(ModifyDialogTest, ARowOutsideItsBandCanBeEditedAsLongAsItsFrequencyStays)
{
    SetModel(2);  // the stored rows are those of region 0: band 2 starts at 29 MHz here
    EXPECT_TRUE(Vfo(2, [this] {
        Click(dialog_, "opbWave_2");
        Frequency().setFocus();
        PressEnter();
    }));
    EXPECT_EQ(image_.VFOText(2, kFrequency), "1.625000");
    EXPECT_EQ(image_.VFOText(2, kMode), "WFM");
}

TEST_F(ModifyDialogTest, SeveralRowsShowWhatTheyShareAndTakeWhatIsTouched)
{
    PutChannels({0, 15}, 100);
    CloneImage expected = image_;
    for (int row = 0; row < 15; ++row)
        expected.MemData(row).mode = 1;
    const RowList rows = RowsOf({0, 15});
    Act([this] {
        ExpectLabels("Modify Memory", "15 channels", "(0.1-1299.995MHz)");
        EXPECT_TRUE(Frequency().text().isEmpty() && Get<QAbstractButton>("opbStep_0").isChecked());
        EXPECT_FALSE(Get<QAbstractButton>("OKNextButton").isVisible() ||
                     Get<QAbstractButton>("chkHold").isVisible());
        Type(Frequency(), "1300");
        PressEnter();
        EXPECT_TRUE(dialog_.isVisible() && Frequency().text().isEmpty()) << "refused: blank again";
        Click(dialog_, "opbWave_1");
        PressEnter();
    });
    EXPECT_TRUE(dialog_.OpenSeveral(rows, 0));
    EXPECT_TRUE(image_ == expected);
    EXPECT_EQ(document_.History().undoText(), QStringLiteral("Modify (Bank 0, 15 channels)"));
    EXPECT_EQ(Steps(), 1);

    document_.Absorb([](CloneImage& image) { image.MemData(3).option = 8; });
    Act([this] {
        EXPECT_EQ(Get<QCheckBox>("chkSkip").checkState(), Qt::PartiallyChecked);
        Click(dialog_, "OKButton");
    });
    dialog_.OpenSeveral(rows, 0);
    EXPECT_TRUE(image_.MemData(3).IsSkipped() && !image_.MemData(4).IsSkipped() && Steps() == 1);
}

TEST_F(ModifyDialogTest, PreviousAndNextStoreWhatWasChangedAndGoOn)
{
    PutChannels({0, 2}, 100);
    QSignalSpy shown(&dialog_, &dlgModify::RowShown);
    Act([this] {
        EXPECT_FALSE(Get<QWidget>("PreviousButton").isEnabled());
        QTest::keyClick(&Frequency(), Qt::Key_PageDown, Qt::AltModifier);
        EXPECT_EQ(Frequency().selectedText(), QStringLiteral("101.000000"));
        EXPECT_TRUE(Steps() == 0 && !document_.DataChanged()) << "looking is no edit";
        Type(Frequency(), "88");
        Click(dialog_, "PreviousButton");
        EXPECT_EQ(image_.MemText(1, kFrequency), "88.000000");
        Type(Frequency(), "1300");
        QTest::keyClick(&Frequency(), Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(Get<QLabel>("lblCH").text(), QStringLiteral("Bank 0  CH 0")) << "refused: stays";
        for (int i = 0; i < 2; ++i)
            QTest::keyClick(&Frequency(), Qt::Key_Return, Qt::ControlModifier);
        QTest::keyClick(&Frequency(), Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(Frequency().text(), QStringLiteral("145.000000")) << "OK of an empty row is refused";
        Click(dialog_, "NextButton");
        Click(dialog_, "CancelButton");
    });
    dialog_.OpenMemory(0, 0);
    EXPECT_EQ(shown.count(), 5);
    EXPECT_EQ(image_.MemText(2, kFrequency), "145.000000");
    Vfo(13, [this] { EXPECT_FALSE(Get<QWidget>("NextButton").isEnabled()); });
}

TEST_F(ModifyDialogTest, TheViewOfAllRowsNamesTheBankToo)
{
    const std::pair<int, const char*> cases[] = {{201, "Bank 1  CH 1"}, {1003, "Program Scan  CH 1B"}};
    for (const auto& [row, name] : cases)
        Memory(row, [this, label = name] { ExpectLabels("Modify Memory", label, "(0.1-1299.995MHz)"); });
}

TEST_F(ModifyDialogTest, EverythingIsInSightOnASmallScreen)
{
    Memory(0, [this] {
        Type(Get<QLineEdit>("txtNote"), "a,b");
        EXPECT_LE(dialog_.sizeHint().height(), 480);
        for (const QLabel* label : dialog_.findChildren<QLabel*>())
            EXPECT_TRUE(!label->isVisible() || label->width() >= label->sizeHint().width())
                << label->text().toStdString();
    });
}

TEST_F(ModifyDialogTest, HoldStartsEmptyRowsWithTheLastConfirmedValuesButTheNote)
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
    Channel held = image_.MemData(500);
    held.note.clear();
    EXPECT_TRUE(image_.MemData(501) == held && held.enabled);
}

}  // namespace
}  // namespace rqm5
