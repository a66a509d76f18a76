#include <QComboBox>
#include <QDockWidget>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTableView>
#include <fstream>

#include "app/receiver_window_fixture.h"
#include "files/file_store.h"
#include "image/channel_block.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

constexpr auto kControlShift = Qt::ControlModifier | Qt::ShiftModifier;

/// A clone file with 600 channels, of which the one in row 4 is off.
void SaveStartFile(const QString& path)
{
    CloneImage image = StartUpImage(0);
    for (int row = 0; row < 600; ++row) {
        const std::string block = "0" + std::to_string(100 + row) + std::string(28, '0');
        DecodeMemoryBlock(image, MemoryBlock(block), row);
        image.MemData(row).enabled = row != 4;
    }
    ASSERT_FALSE(SaveCloneFile(path, image).problem);
}

/// A started program with a file open, and a person who edits and takes back.
class HistoryTest : public WindowTest
{
  protected:
    HistoryTest()
    {
        options_.commandFile = Path("radio.RQ5");
        SaveStartFile(options_.commandFile);
        Start();
    }

    std::string UndoText() { return Item("mnuHistoryUndo").text().toStdString(); }
    std::string RedoText() { return Item("mnuHistoryRedo").text().toStdString(); }
    QTableView& Memory() { return Find<QTableView>("MSFlexGrid1"); }
    QLineEdit& BankBox(int bank)
    {
        return Find<QLineEdit>(qPrintable(QStringLiteral("txtBank_%1").arg(bank)));
    }

    void Undo() { Press(Qt::Key_Z, Qt::ControlModifier); }
    void Redo() { Press(Qt::Key_Y, Qt::ControlModifier); }

    void ChooseFromMenu(const char* name)
    {
        QMenuBar& bar = *window_->menuBar();
        auto& menu = Find<QMenu>("mnuEdit");
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(menu.menuAction()).center());
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&Item(name)).center());
    }

    void PressOnToolbar(const char* name)
    {
        QTest::mouseClick(Find<ToolBar>("tbToolBar").widgetForAction(&Item(name)), Qt::LeftButton);
    }

    /// Clicks a table row, counted from 1.
    void ClickRow(QTableView& table, int tableRow)
    {
        const QModelIndex cell = table.model()->index(tableRow - 1, 0);
        table.scrollTo(cell);
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(cell).center());
    }

    void GoToRow(int selector, int tableRow)
    {
        GoTo(Tab::Memory);
        Find<QComboBox>("cbbBank").setCurrentIndex(selector);
        ClickRow(Memory(), tableRow);
    }

    /// Does something to a row of the view of all rows.
    void OnRow(int row, const char* button, QMessageBox::StandardButton answer = QMessageBox::Ok)
    {
        GoToRow(kSelectAll, row + 1);
        dialogs_.answers = {answer};
        Click(button);
        dialogs_.answers.clear();
    }

    /// Changes the note or, in a VFO row, the mode of the row that is selected.
    void Modify()
    {
        dialogs_.act = [](QDialog& dialog) {
            QTest::keyClicks(dialog.findChild<QLineEdit*>(QStringLiteral("txtNote")), QStringLiteral("x"));
            QTest::mouseClick(dialog.findChild<QAbstractButton*>(QStringLiteral("opbWave_2")), Qt::LeftButton,
                              {}, {8, 8});
            QTest::mouseClick(dialog.findChild<QAbstractButton*>(QStringLiteral("OKButton")), Qt::LeftButton);
        };
        Press(Qt::Key_Return);
    }

    void Import(const char* name)
    {
        std::ofstream(Path(name).toStdString()) << "\"RQ-M5\",\"MEMORY\",\"3\",\"145.500000\",\"FM\","
                                                   "\"10KHz\",\"OFF\",\"0\",\"300Hz\",\"88.5Hz\","
                                                   "\"OFF\",\"0.600000\",\"\",\"#FALSE#\",#TRUE#\r\n";
        dialogs_.files = {Path(name)};
        Item("mnuFileImport").trigger();
    }

    /// What all pages show, the colours of channels that are off included.
    std::string Shown()
    {
        QStringList shown;
        for (const char* name : {"MSFlexGrid1", "MSFlexGrid2"}) {
            const QAbstractItemModel& model = *Find<QTableView>(name).model();
            for (int row = 0; row < std::min(model.rowCount(), 210); ++row)
                for (int column = 0; column < model.columnCount(); ++column) {
                    const QModelIndex cell = model.index(row, column);
                    shown += cell.data().toString();
                    shown += cell.data(Qt::ForegroundRole).value<QBrush>().color().name();
                }
        }
        QStringList controls;
        const auto show = [&controls](const QWidget* control, const QString& value) {
            controls += control->objectName() + QLatin1Char('=') + value;
        };
        for (const auto* box : Tabs().findChildren<QLineEdit*>())
            show(box, box->text());
        for (const auto* label : Tabs().findChildren<QLabel*>())
            if (label->objectName() != QLatin1String("lblBankMove"))  // an offer, made once
                show(label, label->text());
        for (const auto* button : Tabs().findChildren<QAbstractButton*>())
            show(button, QString::number(button->isChecked()));
        for (const auto* slider : Tabs().findChildren<QSlider*>())
            show(slider, QString::number(slider->value()));
        controls.sort();  // the page that was last in front is the last child
        return (shown + controls).join(u'|').toStdString();
    }
};

TEST_F(HistoryTest, EveryKindOfEditIsTakenBackAndMadeAgain)
{
    struct
    {
        const char* name;
        std::function<void()> make;
        const char* state = "Changed";
    } const cases[] = {
        {"Disable (Bank 0, channel 3)", [this] { OnRow(3, "cmbDisable"); }},
        {"Enable (Bank 0, channel 4)", [this] { OnRow(4, "cmbEnable"); }},
        {"Disable All (All, 1210 channels)", [this] { OnRow(3, "cmbDisAll"); }},
        {"Enable All (All, 1210 channels)", [this] { OnRow(3, "cmbEnAll"); }},
        {"Insert (Bank 0, channel 3)", [this] { OnRow(3, "cmbInsert"); }},
        {"Delete (Bank 0, channel 3)", [this] { OnRow(3, "cmbDelete"); }},
        {"Clear (Bank 0, channel 3)", [this] { OnRow(3, "cmbClear"); }},
        {"Clear All (All, 1210 channels)", [this] { OnRow(3, "cmbClAll"); }},
        {"Modify (Bank 0 CH 3)",
         [this] {
             GoToRow(kSelectAll, 4);
             Modify();
         }},
        {"Modify (Band 2)",
         [this] {
             GoTo(Tab::Settings1);
             ClickRow(Find<QTableView>("MSFlexGrid2"), 3);
             Modify();
         }},
        {"Bank 0 size: 7",
         [this] {
             TypeBankSize(0, "7");
             Press(Qt::Key_Tab);
         }},
        {"Link bank 3",
         [this] {
             GoTo(Tab::Bank);
             Click("chkLink_3");
         }},
        {"Scan Mode: Timer Scan", [this] { EditSomething(); }},
        {"Model: RQ-M5 T",
         [this] {
             GoTo(Tab::Settings1);
             Click("opbModel_2");
         }},
        {"Beep: off",
         [this] {
             GoTo(Tab::Settings2);
             Click("chkBeep");
         }},
        {"Volume: 50",
         [this] {
             GoTo(Tab::Settings1);
             Find<QSlider>("Slider1").setFocus();
             Press(Qt::Key_End);
         }},
        {"Import (a&&b.csv)", [this] { Import("a&b.csv"); }, "Saved"},
    };
    Find<QComboBox>("cbbBank").setCurrentIndex(kSelectAll);
    const std::string before = Shown();
    for (const auto& edit : cases) {
        SCOPED_TRACE(edit.name);
        EXPECT_TRUE(!Item("mnuHistoryUndo").isEnabled() && UndoText() == "&Undo");
        edit.make();
        const std::string after = Shown();
        EXPECT_TRUE(after != before);
        EXPECT_EQ(UndoText(), std::string("&Undo ") + edit.name);
        EXPECT_TRUE(!Item("mnuHistoryRedo").isEnabled() && RedoText() == "&Redo");
        EXPECT_EQ(StatusText("lblFileState").toStdString(), edit.state);
        Undo();
        EXPECT_TRUE(Shown() == before);
        EXPECT_EQ(RedoText(), std::string("&Redo ") + edit.name);
        EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Saved"));
        Redo();
        EXPECT_TRUE(Shown() == after);
        EXPECT_EQ(StatusText("lblFileState").toStdString(), edit.state);
        Undo();
    }
}

TEST_F(HistoryTest, KeysMenuAndToolbarDoTheSame)
{
    const std::pair<std::function<void()>, std::function<void()>> ways[] = {
        {[this] { Undo(); }, [this] { Redo(); }},
        {[this] { Undo(); }, [this] { Press(Qt::Key_Z, kControlShift); }},
        {[this] { ChooseFromMenu("mnuHistoryUndo"); }, [this] { ChooseFromMenu("mnuHistoryRedo"); }},
        {[this] { PressOnToolbar("mnuHistoryUndo"); }, [this] { PressOnToolbar("mnuHistoryRedo"); }},
    };
    EditSomething();
    for (const auto& [undo, redo] : ways) {
        undo();
        EXPECT_FALSE(Find<QRadioButton>("opbScanMode_1").isChecked());
        redo();
        EXPECT_TRUE(Find<QRadioButton>("opbScanMode_1").isChecked());
    }
}

TEST_F(HistoryTest, WhatAStepTouchedComesToTheFront)
{
    const auto memoryRow = [this](int selector, int tableRow) {
        return Find<QComboBox>("cbbBank").currentIndex() == selector &&
               Memory().currentIndex().row() == tableRow - 1;
    };
    struct
    {
        const char* what;
        Tab tab;
        std::function<void()> make;
        std::function<bool()> isInFront;
    } const cases[] = {
        {"a row of bank 3", Tab::Memory,
         [this] {
             GoToRow(3, 5);
             Click("cmbDisable");
         },
         [=] { return memoryRow(3, 5); }},
        {"a bank", Tab::Memory,
         [this] {
             GoToRow(2, 7);
             Click("cmbDisAll");
         },
         [=] { return memoryRow(2, 1); }},
        {"a VFO band", Tab::Settings1,
         [this] {
             GoTo(Tab::Settings1);
             ClickRow(Find<QTableView>("MSFlexGrid2"), 7);
             Modify();
             ClickRow(Find<QTableView>("MSFlexGrid2"), 2);
         },
         [this] { return Find<QTableView>("MSFlexGrid2").currentIndex().row() == 6; }},
        {"a bank's size", Tab::Bank,
         [this] {
             TypeBankSize(12, "0");
             TypeBankSize(1, "30");
             GoTo(Tab::Memory);
         },
         [this] { return BankBox(1).hasFocus(); }},
        {"a link", Tab::Bank,
         [this] {
             GoTo(Tab::Bank);
             Click("chkLink_20");
         },
         [this] { return Find<QAbstractButton>("chkLink_20").hasFocus(); }},
        {"a setting", Tab::Settings1, [this] { EditSomething(); }, [] { return true; }},
        {"a setting of the second page", Tab::Settings2,
         [this] {
             GoTo(Tab::Settings2);
             Click("chkBeep");
         },
         [] { return true; }},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        row.make();
        for (const bool isUndone : {true, false}) {
            GoToRow(10, 1);
            GoTo(row.tab == Tab::Settings2 ? Tab::Bank : Tab::Settings2);
            isUndone ? Undo() : Redo();
            EXPECT_EQ(Tabs().currentIndex(), static_cast<int>(row.tab));
            EXPECT_TRUE(row.isInFront());
        }
    }
}

TEST_F(HistoryTest, ABoxTakesBackItsOwnTypingFirst)
{
    EditSomething();
    TypeBankSize(5, "77");
    Undo();
    EXPECT_FALSE(BankBox(5).text().contains(u'7'));
    EXPECT_EQ(RedoText(), "&Redo") << "the typing is taken back, and nothing else";
    while (BankBox(5).isUndoAvailable())
        Undo();
    EXPECT_TRUE(BankBox(5).text() == QStringLiteral("50") && BankBox(5).hasFocus());
    Undo();
    EXPECT_EQ(RedoText(), "&Redo Scan Mode: Timer Scan");
    GoTo(Tab::Bank);
    BankBox(8).setFocus();
    Press(Qt::Key_Z, kControlShift);
    EXPECT_EQ(UndoText(), "&Undo Scan Mode: Timer Scan") << "nothing was typed here";

    GoToRow(0, 1);
    dialogs_.act = [](QDialog& dialog) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    };
    Press(Qt::Key_Return);
    EXPECT_EQ(RedoText(), "&Redo") << "a dialog leaves the history alone";
}

TEST_F(HistoryTest, TypingThatIsNotFinishedYetIsTheLastStep)
{
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"toolbar", [this] { PressOnToolbar("mnuHistoryUndo"); }},
        {"menu", [this] { ChooseFromMenu("mnuHistoryUndo"); }},
        {"list",
         [this] {
             auto& list = Find<QListView>("lstHistory");
             QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                               list.visualRect(list.model()->index(1, 0)).center());
         }},
    };
    Item("mnuViewHistory").trigger();
    const std::string before = Shown();
    for (const auto& [way, undo] : cases) {
        SCOPED_TRACE(way);
        GoToRow(0, 1);
        Click("cmbDisable");
        TypeBankSize(5, "7");
        undo();
        EXPECT_EQ(BankBox(5).text(), QStringLiteral("50"));
        EXPECT_EQ(UndoText(), "&Undo Disable (Bank 0, channel 0)");
        EXPECT_EQ(RedoText(), "&Redo Bank 5 size: 7");
        Undo();
        EXPECT_TRUE(Shown() == before);
    }
    // While the box has typing of its own, the key of Redo leaves the history alone.
    TypeBankSize(5, "7");
    Press(Qt::Key_Z, kControlShift);
    EXPECT_EQ(UndoText(), "&Undo");
    EXPECT_EQ(RedoText(), "&Redo Disable (Bank 0, channel 0)");
}

TEST_F(HistoryTest, ADragOfASliderAndARunOfKeysAreOneStepEach)
{
    GoTo(Tab::Settings1);
    auto& slider = Find<QSlider>("Slider1");
    const auto drag = [&slider](int pixels) {
        QStyleOptionSlider option;
        option.initFrom(&slider);
        option.subControls = QStyle::SC_SliderHandle;
        option.orientation = Qt::Horizontal;
        option.maximum = slider.maximum();
        option.sliderPosition = option.sliderValue = slider.value();
        const QRect handle =
            slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider);
        QTest::mousePress(&slider, Qt::LeftButton, {}, handle.center());
        for (int step = 1; step <= 5; ++step)
            QTest::mouseMove(&slider, handle.center() + QPoint(pixels * step / 5, 0));
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, handle.center() + QPoint(pixels, 0));
    };
    std::vector<int> volumes = {slider.value()};
    const std::function<void()> runs[] = {
        [=] { drag(60); },
        [=] { drag(-90); },
        [this] {
            for (int i = 0; i < 3; ++i)
                Press(Qt::Key_Right);
        },
        [this] {
            Find<QSlider>("Slider2").setFocus();  // leaves the other one
            Find<QSlider>("Slider1").setFocus();
            Press(Qt::Key_PageUp);
        },
        [=] { drag(-40); },
    };
    for (const auto& run : runs) {
        run();
        EXPECT_NE(slider.value(), volumes.back()) << volumes.size();
        volumes.push_back(slider.value());
        EXPECT_EQ(UndoText(), "&Undo Volume: " + std::to_string(slider.value()));
    }
    for (; volumes.size() > 1; Undo()) {
        EXPECT_EQ(slider.value(), volumes.back()) << volumes.size();
        volumes.pop_back();
    }
    EXPECT_TRUE(slider.value() == volumes.front() && UndoText() == "&Undo");
}

TEST_F(HistoryTest, AClickInTheListOfStepsGoesThere)
{
    const std::string names[] = {"&Undo", "&Undo Scan Mode: Timer Scan", "&Undo Link bank 3",
                                 "&Undo Beep: off"};
    EditSomething();
    GoTo(Tab::Bank);
    Click("chkLink_3");
    GoTo(Tab::Settings2);
    Click("chkBeep");
    Item("mnuViewHistory").trigger();
    auto& list = Find<QListView>("lstHistory");
    ASSERT_TRUE(list.isVisible());
    ASSERT_EQ(list.model()->rowCount(), 4);
    for (const int row : {1, 3, 0, 2, 1, 2}) {
        const QRect place = list.visualRect(list.model()->index(row, 0));
        if (row == list.currentIndex().row() + 1 || row == list.currentIndex().row() - 1)
            Press(row > list.currentIndex().row() ? Qt::Key_Down : Qt::Key_Up);
        else
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
        EXPECT_EQ(UndoText(), names[row]);
        EXPECT_EQ(Find<QAbstractButton>("opbScanMode_1").isChecked(), row >= 1);
        EXPECT_EQ(Find<QAbstractButton>("chkLink_3").isChecked(), row >= 2);
        EXPECT_EQ(Find<QAbstractButton>("chkBeep").isChecked(), row < 3);
        EXPECT_TRUE(list.hasFocus()) << "whoever walks through the list goes on walking";
    }
    const auto hasIcon = [&list](int row) {
        return !list.model()->index(row, 0).data(Qt::DecorationRole).value<QIcon>().isNull();
    };
    EXPECT_TRUE(hasIcon(0) && !hasIcon(2));
    Item("mnuFileSave").trigger();
    EXPECT_TRUE(hasIcon(2) && !hasIcon(0)) << "the mark goes with the file";
    Find<QDockWidget>("dckHistory").close();
    EXPECT_FALSE(Item("mnuViewHistory").isChecked());
}

TEST_F(HistoryTest, AnImportTakenBackBringsBackItsFileAndNewForgetsEverything)
{
    EditSomething();
    Import("in.csv");
    Undo();
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("radio.RQ5 - ")));
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Changed"));
    Redo();
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("in.csv - ")));
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Saved"));
    dialogs_.files = {Path("radio.RQ5")};
    Item("mnuFileSaveAs").trigger();
    Undo();
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("radio.RQ5 - ")));
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Changed")) << "the file holds the import now";
    Redo();
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Saved"));
    Item("mnuFileNew").trigger();
    EXPECT_FALSE(Item("mnuHistoryUndo").isEnabled() || Item("mnuHistoryRedo").isEnabled());
}

TEST_F(ReceiverWindowTest, AReadIsOneStepAlsoWhenItBreaksOff)
{
    const auto cell = [this](int row) {
        return Find<QTableView>("MSFlexGrid1").model()->index(row, 0).data().toString().toStdString();
    };
    const auto undo = [this] { Press(Qt::Key_Z, Qt::ControlModifier); };
    const QString region = StatusText("lblRegion");
    Item("mnuReAll").trigger();
    EXPECT_EQ(Item("mnuHistoryUndo").text(), QStringLiteral("&Undo Read ALL"));
    undo();
    EXPECT_FALSE(Item("mnuHistoryUndo").isEnabled());
    EXPECT_EQ(cell(0), "");
    EXPECT_EQ(StatusText("lblRegion"), region);
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("New"));

    Find<QComboBox>("cbbBank").setCurrentIndex(kSelectAll);
    At(3, [this, undo] {
        undo();
        Find<QAbstractButton>("cmbCancel").click();
    });
    Item("mnuReMemory").trigger();
    EXPECT_EQ(Item("mnuHistoryUndo").text(), QStringLiteral("&Undo Read Memory (All)"));
    EXPECT_EQ(cell(0), demo_.MemText(0, kFrequency)) << "nothing was taken back while it ran";
    undo();
    EXPECT_EQ(cell(0), "");
    EXPECT_EQ(StatusText("lblEnabled"), QStringLiteral("Channels enabled: 0"));
}

}  // namespace
}  // namespace rqm5
