#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTableView>
#include <QTemporaryFile>
#include <QUrl>

#include "memory/memory_page.h"
#include "memory/memory_table.h"
#include "ui/page_test.h"

namespace rqm5 {
namespace {

/// The Memory page with a hundred channels in Bank 0, and a person at keyboard and mouse.
class TableEditTest : public PageTest
{
  protected:
    TableEditTest()
    {
        PutChannels({0, 100}, 100);
        page_.AddRowItems(menu_);
        page_.resize(900, 600);
        Show(page_);
        QApplication::clipboard()->clear();
        ClickCell(1, 0);
    }

    QTableView& Table() { return Find<QTableView>(page_, QStringLiteral("MSFlexGrid1")); }
    QAction& Item(const char* name) { return *page_.findChild<QAction*>(QLatin1String(name)); }

    /// Clicks a cell, the table row counted from 1.
    void ClickCell(int tableRow, int column, Qt::KeyboardModifiers modifiers = {})
    {
        const QModelIndex cell = Table().model()->index(tableRow - 1, column);
        Table().scrollTo(cell);
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, modifiers, Table().visualRect(cell).center());
    }
    void SelectRows(int first, int last)
    {
        ClickCell(first, 0);
        ClickCell(last, 0, Qt::ShiftModifier);
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void Type(std::string_view text)
    {
        // The first key opens the cell, which gets the others.
        for (const char key : text)
            QTest::keyClick(QApplication::focusWidget(), key);
    }

    std::string Selected()
    {
        std::string rows;
        for (const QModelIndex& row : Table().selectionModel()->selectedRows())
            rows += std::to_string(row.row()) + " ";
        return rows;
    }
    std::pair<int, int> Cursor() { return {Table().currentIndex().row(), Table().currentIndex().column()}; }
    std::string LastStep() { return document_.History().undoText().toStdString(); }
    std::string Frequency(int row) { return image_.MemText(row, kFrequency); }
    void PutOnClipboard(const char* text) { QApplication::clipboard()->setText(QString::fromUtf8(text)); }

    QMenu menu_;
    MemoryPage page_{document_, dialogs_, nullptr};
};

TEST_F(TableEditTest, RowsAreSelectedAsInASpreadsheet)
{
    SelectRows(3, 5);
    ClickCell(8, 0, Qt::ControlModifier);
    EXPECT_EQ(Selected(), "2 3 4 7 ");
    Press(Qt::Key_Down, Qt::ShiftModifier);
    ClickCell(2, 0);
    EXPECT_EQ(Selected(), "1 ");
    Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Table().selectionModel()->selectedRows().size(), 200);
    ClickCell(2, 0);
    const QPoint to = Table().visualRect(Table().model()->index(6, 0)).center();
    const QPoint from = Table().visualRect(Table().model()->index(3, 0)).center();
    QTest::mousePress(Table().viewport(), Qt::LeftButton, {}, from);
    QTest::mouseMove(Table().viewport(), (from + to) / 2);
    QTest::mouseMove(Table().viewport(), to);
    QTest::mouseRelease(Table().viewport(), Qt::LeftButton, {}, to);
    EXPECT_EQ(Selected(), "3 4 5 6 ") << "a drag from a row that is not selected";
}

TEST_F(TableEditTest, TheButtonsWorkOnAllSelectedRowsAndNameHowMany)
{
    SelectRows(3, 5);
    Click(page_, "cmbDisable");
    EXPECT_TRUE(image_.MemEnable(1) && !image_.MemEnable(2) && !image_.MemEnable(4) && image_.MemEnable(5));
    EXPECT_EQ(LastStep(), "Disable (Bank 0, 3 channels)");
    EXPECT_EQ(Selected(), "2 3 4 ");
    Press(Qt::Key_Space);
    EXPECT_TRUE(image_.MemEnable(2) && image_.MemEnable(4));
    Press(Qt::Key_Space);
    EXPECT_FALSE(image_.MemEnable(2) || image_.MemEnable(4));
    dialogs_.answers = {QMessageBox::Ok};
    Item("mnuEditClear").trigger();
    EXPECT_EQ(dialogs_.asked.back().details.toStdString(),
              "This clears Bank 0, 3 channels. Edit > Undo brings it back.");
    EXPECT_TRUE(Frequency(1) == "101.000000" && Frequency(2).empty() && Frequency(4).empty());
    dialogs_.asked.clear();
    Press(Qt::Key_Delete);
    EXPECT_EQ(dialogs_.asked.back().details.toStdString(),
              "This deletes memory row 4 (Bank 0, channel 4), which is empty. Edit > Undo brings it back.")
        << "Delete keeps its one row";
}

TEST_F(TableEditTest, RowsGoToAnotherBankByTheClipboard)
{
    SelectRows(1, 20);
    Press(Qt::Key_C, Qt::ControlModifier);
    auto& banks = Find<QComboBox>(page_, QStringLiteral("cbbBank"));
    banks.setFocus();
    Press(Qt::Key_End);
    Press(Qt::Key_Home);
    for (int i = 0; i < 4; ++i)
        Press(Qt::Key_Down);
    Press(Qt::Key_V, Qt::ControlModifier);  // from the list, where the bank was chosen
    EXPECT_EQ(dialogs_.runs, 0) << "nothing is lost, so nobody is asked";
    EXPECT_EQ(LastStep(), "Paste (Bank 4, 20 channels)");
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(image_.MemData(600 + i), image_.MemData(i)) << i;
    document_.History().undo();
    EXPECT_FALSE(image_.MemData(600).HasChannel());
    EXPECT_EQ(QApplication::clipboard()->text().section(u'\n', 1, 1).section(u'\t', 0, 0),
              QStringLiteral("100.000000"));
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasHtml());
}

TEST_F(TableEditTest, APasteOverChannelsShowsFirstWhatItDoes)
{
    SelectRows(3, 4);
    Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_TRUE(Frequency(2).empty() && LastStep() == "Cut (Bank 0, 2 channels)");
    PutOnClipboard("Freq;Name\n118,1;Tower\n1400;far\n121,9;Ground\n");
    ClickCell(10, 0);
    const CloneImage before = image_;
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(image_ == before) << "cancelled";
    dialogs_.act = [](QDialog& dialog) {
        const auto& table = *dialog.findChild<QTableView*>(QStringLiteral("tblPaste"))->model();
        const auto text = [&table](int row, int column) {
            return table.index(row, column).data().toString();
        };
        EXPECT_EQ(text(0, 0), QStringLiteral("Bank 0, channel 9"));
        EXPECT_EQ(text(0, 1), QStringLiteral("109.000000 FM 9KHz"));
        EXPECT_EQ(text(0, 2), QStringLiteral("118.100000 AM 25KHz, Tower"));
        EXPECT_EQ(text(1, 3), QStringLiteral("Refused: Line 3: The receiver takes 0.1 to 1299.995 MHz."));
        EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lblPasteSummary"))->text(),
                  QStringLiteral("Rows that are written: 2, of which 2 hold a channel now; refused: 1"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    };
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(Frequency(9) == "118.100000" && Frequency(10) == "110.000000" &&
                Frequency(11) == "121.900000");
    EXPECT_EQ(image_.MemText(11, kNote), "Ground");
    PutOnClipboard("");
    PutOnClipboard("\n");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(dialogs_.asked.back().text, QStringLiteral("There is no channel in it."));
}

TEST_F(TableEditTest, ChosenColumnsGoIntoTheSelectedRows)
{
    document_.Absorb([](CloneImage& image) { image.MemData(0).mode = 1; });
    ClickCell(1, 0);
    Press(Qt::Key_C, Qt::ControlModifier);
    dialogs_.act = [](QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QCheckBox*>(QStringLiteral("chkPart_4"))->isEnabled());
        EXPECT_TRUE(dialog.findChild<QCheckBox*>(QStringLiteral("chkPart_1"))->isChecked());
        QTest::keyClick(&dialog, Qt::Key_Return);
    };
    SelectRows(3, 17);
    Press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(LastStep(), "Paste Special (Bank 0, 15 channels)");
    EXPECT_TRUE(image_.MemData(2).mode == 1 && image_.MemData(16).mode == 1 && image_.MemData(17).mode == 0);
    EXPECT_EQ(Frequency(16), "116.000000");
    SelectRows(17, 19);
    Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_TRUE(LastStep() == "Fill Down (Bank 0, 2 channels)" && image_.MemData(18).mode == 1);
    EXPECT_EQ(Selected(), "16 17 18 ");
}

TEST_F(TableEditTest, ASeriesIsFilledInFromTheCurrentRow)
{
    ClickCell(99, 0);
    dialogs_.act = [](QDialog& dialog) {
        auto& start = Find<QLineEdit>(dialog, QStringLiteral("txtFillStart"));
        EXPECT_EQ(start.text(), QStringLiteral("198.009000")) << "goes on from the current channel";
        start.setText(QStringLiteral("118"));
        Find<QLineEdit>(dialog, QStringLiteral("txtFillSpacing")).setText(QStringLiteral("25"));
        Find<QComboBox>(dialog, QStringLiteral("cbbFillLike")).setCurrentIndex(0);
        auto& last = Find<QLineEdit>(dialog, QStringLiteral("txtFillLast"));
        QTest::keyClicks(&last, QStringLiteral("118.725"));
        EXPECT_EQ(Find<QLabel>(dialog, QStringLiteral("lblFillSummary")).text(),
                  QStringLiteral("Rows that are written: 30"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    };
    Item("mnuEditFillSeries").trigger();
    EXPECT_EQ(LastStep(), "Fill Series (Bank 0, 30 channels)");
    EXPECT_TRUE(Frequency(99) == "199.000000" && Frequency(100) == "118.000000" &&
                Frequency(129) == "118.725000");
    EXPECT_TRUE(image_.MemData(129).mode == 1 && image_.MemData(129).step == 8 && image_.MemEnable(129));
}

TEST_F(TableEditTest, RowsMoveByKeysDragsAndMenus)
{
    SelectRows(3, 4);
    Press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_TRUE(Frequency(1) == "102.000000" && Frequency(3) == "101.000000");
    EXPECT_TRUE(LastStep() == "Move (Bank 0, 2 channels)" && Selected() == "1 2 ");
    Press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Frequency(1), "101.000000");
    // Without a display there is no drag; this is what the table says when one has ended.
    emit Find<MemoryTable>(page_, QStringLiteral("MSFlexGrid1")).RowsDragged(7);
    EXPECT_TRUE(Frequency(2) == "104.000000" && Frequency(5) == "102.000000" && Selected() == "5 6 ");
    document_.History().undo();
    ClickCell(1, 0);
    const int steps = Steps();
    Press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Steps(), steps) << "nothing moved";
    Item("mnuEditInsertRow").trigger();
    EXPECT_TRUE(Frequency(0).empty() && Frequency(1) == "100.000000");
    Item("mnuEditSortFrequency").trigger();
    EXPECT_TRUE(Frequency(0) == "100.000000" && LastStep() == "Sort by Frequency (Bank 0)");
    SelectRows(1, 2);
    Item("mnuEditDeleteRow").trigger();
    EXPECT_TRUE(Frequency(0) == "102.000000" && Frequency(97) == "199.000000" && Frequency(98).empty());

    QMenu& banks = *Item("mnuEditMoveToBank").menu();
    emit banks.aboutToShow();
    EXPECT_EQ(banks.actions().at(1)->text(), QStringLiteral("Bank 1 (0 of 150)"));
    EXPECT_FALSE(banks.actions().at(0)->isEnabled());
    banks.actions().at(1)->trigger();
    EXPECT_TRUE(Frequency(0).empty() && Frequency(200) == "102.000000");
    EXPECT_EQ(LastStep(), "Move to Bank 1 (Bank 0, channel 0)");

    page_.SelectGroup(kSelectAll);
    ClickCell(3, 0);
    EXPECT_FALSE(Item("mnuEditMoveUp").isEnabled() || Item("mnuEditSort").isEnabled());
    EXPECT_TRUE(Item("mnuEditCopy").isEnabled());
    page_.setEnabled(false);
    EXPECT_FALSE(Item("mnuEditCopy").isEnabled());
}

TEST_F(TableEditTest, WithAFilterOnTheSelectionFollowsItsRows)
{
    document_.Absorb([](CloneImage& image) {
        for (const int row : {2, 4, 6, 8})
            image.MemData(row).note = "x";
    });
    Find<QComboBox>(page_, QStringLiteral("cbbFilter")).setCurrentText(QStringLiteral("With a note"));
    SelectRows(2, 4);
    document_.Edit({}, [](CloneImage& image) { image.MemData(4).note.clear(); });
    EXPECT_TRUE(Selected() == "1 2 " && Cursor() == std::pair(2, 0)) << "rows 6 and 8";
    ClickCell(1, 9);
    Press(Qt::Key_F2);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Return);
    EXPECT_TRUE(image_.MemText(2, kNote).empty() && Cursor() == std::pair(0, 9)) << "row 6 stands there";
    Press(Qt::Key_V, Qt::ControlModifier);
    for (const char* item : {"mnuEditPaste", "mnuEditMoveUp", "mnuEditSort", "mnuEditCut"})
        EXPECT_FALSE(Item(item).isEnabled()) << item;
    EXPECT_TRUE(Item("mnuEditCopy").isEnabled() && Steps() == 2);
}

TEST_F(TableEditTest, TypingEditsTheCellUnderTheCursor)
{
    ClickCell(101, 0);
    for (const char* frequency : {"118.1", "118.125"}) {
        Type(frequency);
        Press(Qt::Key_Enter);
    }
    EXPECT_TRUE(Frequency(100) == "118.100000" && Frequency(101) == "118.125000" && Steps() == 2);
    EXPECT_TRUE(image_.MemData(101).mode == 1 && image_.MemEnable(101));
    EXPECT_EQ(Cursor(), std::pair(102, 0));

    ClickCell(1, 0);
    Press(Qt::Key_Right);
    Press(Qt::Key_F2);
    Press(Qt::Key_Down);
    Press(Qt::Key_Tab);
    EXPECT_TRUE(image_.MemData(0).mode == 1 && LastStep() == "Edit (Bank 0, channel 0)");
    EXPECT_EQ(Cursor(), std::pair(0, 2));
    Type("20");  // a list goes to what is typed
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(image_.MemText(0, kStep), "20KHz");
    EXPECT_EQ(Cursor(), std::pair(0, 1));

    ClickCell(1, 9);
    Type("a note x");
    Press(Qt::Key_Delete);
    Press(Qt::Key_Return);
    EXPECT_EQ(image_.MemText(0, kNote), "a note x");
    EXPECT_TRUE(dialogs_.asked.empty()) << "keys of an open cell are no keys of the table";
    const int steps = Steps();
    Press(Qt::Key_F2);
    Type("no");
    Press(Qt::Key_Escape);
    ClickCell(1, 5);
    Press(Qt::Key_F2);
    Press(Qt::Key_Return);
    EXPECT_TRUE(Steps() == steps && !document_.History().isClean()) << "given up, and only looked at";
}

TEST_F(TableEditTest, ARefusedFrequencyLeavesTheCellAndTheCursor)
{
    QSignalSpy modify(&page_, &MemoryPage::ModifyRequested);
    SetModel(2);
    for (const char* frequency : {"1300", "830"}) {
        ClickCell(2, 0);
        Type(frequency);
        Press(Qt::Key_Return);
        EXPECT_EQ(Frequency(1), "101.000000");
        EXPECT_EQ(Cursor(), std::pair(1, 0));
    }
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].title, QStringLiteral("Frequency of the cellular phone"));
    ClickCell(2, 5);
    Type("3");
    EXPECT_TRUE(Table().hasFocus()) << "this model has no train tone";
    ClickCell(2, 4);
    Type("*");
    Press(Qt::Key_Return);
    EXPECT_TRUE(image_.MemData(1).IsSkipped());
    EXPECT_TRUE(Steps() == 1 && modify.empty());
}

TEST_F(TableEditTest, AListOrRowsThatAreDroppedArePasted)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("118.1,Tower\n121.9,Ground\n");
    file.close();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file.fileName())});
    const QRect row = Table().visualRect(Table().model()->index(9, 0));
    const QPoint place(row.center().x(), row.top() + 2);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(Table().viewport(), &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    dialogs_.act = [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); };
    QCoreApplication::sendEvent(Table().viewport(), &drop);
    EXPECT_TRUE(drop.isAccepted());
    QCoreApplication::processEvents();
    EXPECT_TRUE(Frequency(9) == "118.100000" && Frequency(10) == "121.900000");
}

TEST_F(TableEditTest, EnterAsksForAllSelectedChannels)
{
    QSignalSpy one(&page_, &MemoryPage::ModifyRequested);
    QSignalSpy several(&page_, &MemoryPage::ModifySeveralRequested);
    SelectRows(99, 102);  // two of them are empty
    Press(Qt::Key_Return);
    SelectRows(100, 102);
    Press(Qt::Key_Return);
    ASSERT_TRUE(one.count() == 1 && several.count() == 1);
    EXPECT_EQ(several[0][0].value<std::vector<int>>(), (std::vector<int>{98, 99}));
    EXPECT_EQ(one[0][0].toInt(), 99);
}

}  // namespace
}  // namespace rqm5
