#include "memory/memory_page.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QWheelEvent>
#include <array>

#include "memory/find_bar.h"
#include "ui/off_colour.h"
#include "ui/page_test.h"
#include "ui/settings_store.h"

namespace rqm5 {
namespace {

class MemoryPageTest : public PageTest
{
  protected:
    MemoryPageTest()
    {
        SettingsStore().clear();
        PutChannels({0, 300}, 100);
        page_.resize(900, 600);
        Show(page_);
    }

    QTableView& Table() { return Find<QTableView>(page_, QStringLiteral("MSFlexGrid1")); }
    void GoTo(int tableRow) { Table().setCurrentIndex(Table().model()->index(tableRow - 1, 3)); }
    void ExpectFrequencies(std::initializer_list<std::pair<int, const char*>> rows)
    {
        for (const auto& [row, frequency] : rows)
            EXPECT_EQ(image_.MemText(row, kFrequency), frequency) << row;
    }

    void ExpectWholeRowSelected(int tableRow)
    {
        const QItemSelectionModel& selection = *Table().selectionModel();
        EXPECT_EQ(selection.selectedIndexes().size(), 10);
        EXPECT_TRUE(selection.isRowSelected(tableRow - 1));
        EXPECT_EQ(Table().currentIndex(), Table().model()->index(tableRow - 1, 0));
    }

    QComboBox& Filter() { return Find<QComboBox>(page_, QStringLiteral("cbbFilter")); }
    QLineEdit& FindBox() { return Find<QLineEdit>(page_, QStringLiteral("txtFind")); }
    QListWidget& Found() { return Find<QListWidget>(page_, QStringLiteral("lstFound")); }
    void TypeToFind(const char* text)
    {
        page_.Finder().Begin();
        QTest::keyClicks(&FindBox(), QString::fromUtf8(text));
    }

    MemoryPage page_{document_, dialogs_, nullptr};
};

TEST_F(MemoryPageTest, TheSelectorRefreshesOnChoiceAndFollowsTheBankSizes)
{
    auto& selector = Find<QComboBox>(page_, QStringLiteral("cbbBank"));
    page_.FocusSelector();
    QTest::keyClick(&selector, Qt::Key_Down);
    EXPECT_EQ(Table().model()->rowCount(), 150);
    document_.Absorb([](CloneImage& image) { image.SetBankSize(1, 3); });
    EXPECT_EQ(Table().model()->rowCount(), 3);
}

TEST_F(MemoryPageTest, ARefreshKeepsTheCurrentRowAndSelectsItWhole)
{
    GoTo(150);
    page_.UpDateMemData();
    ExpectWholeRowSelected(150);
    page_.SelectGroup(3);
    ExpectWholeRowSelected(100);  // no more rows than that
    page_.SelectGroup(10);
    EXPECT_EQ(page_.CurrentTableRow(), 0);
    page_.SelectGroup(0);
    ExpectWholeRowSelected(1);
    GoTo(150);
    document_.Replace(StartUpImage(0), {});
    ExpectWholeRowSelected(1);
}

TEST_F(MemoryPageTest, DestructiveOperationsAskFirstAndCancelChangesNothing)
{
    page_.SelectGroup(1);
    GoTo(3);
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {"cmbClear", "CLEAR OK", "Clear cannot be undone.\nAre you sure that you want to do the clear?",
         "This clears Bank 1, channel 2, 302.000000 MHz. Edit > Undo brings it back."},
        {"cmbClAll", "CLEAR OK", "Clear cannot be undone.\nAre you sure that you want to clear all memory?",
         "This clears Bank 1, 150 channels. Edit > Undo brings it back."},
        {"cmbDelete", "DELETE OK", "Delete cannot be undone.\nAre you sure that you want to do the delete?",
         "This deletes memory row 2 (Bank 0, channel 2), 102.000000 MHz. Edit > Undo brings it back."},
    };
    const CloneImage before = image_;
    for (const auto& [button, title, text, details] : cases) {
        dialogs_.asked.clear();
        Click(page_, button);
        ASSERT_EQ(dialogs_.asked.size(), 1U);
        const Prompt& asked = dialogs_.asked[0];
        EXPECT_EQ(asked.title, QLatin1String(title));
        EXPECT_EQ(asked.text, QLatin1String(text));
        EXPECT_EQ(asked.details.toStdString(), details);
        EXPECT_EQ(asked.icon, QMessageBox::Warning);
        EXPECT_EQ(asked.buttons, QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(asked.defaultButton, QMessageBox::Cancel);
    }
    EXPECT_TRUE(image_ == before && !document_.DataChanged());
}

TEST_F(MemoryPageTest, OperationsActOnTheSelectedRowOrTheGroupShown)
{
    page_.SelectGroup(1);
    GoTo(3);
    Click(page_, "cmbDisable");
    EXPECT_FALSE(image_.MemEnable(202));
    Click(page_, "cmbEnable");
    EXPECT_TRUE(image_.MemEnable(202));
    Click(page_, "cmbDisAll");
    EXPECT_TRUE(image_.MemEnable(199) && !image_.MemEnable(200));
    Click(page_, "cmbEnAll");
    EXPECT_TRUE(image_.MemEnable(299) && !image_.MemEnable(300));  // 300 is empty
    ExpectWholeRowSelected(3);
    dialogs_.answers = {QMessageBox::Ok, QMessageBox::Ok};
    Click(page_, "cmbClear");
    ExpectFrequencies({{202, ""}, {203, "303.000000"}});
    Click(page_, "cmbClAll");
    ExpectFrequencies({{199, "299.000000"}, {200, ""}});
    EXPECT_FALSE(image_.MemEnable(200));
    EXPECT_EQ(Steps(), 6);
    EXPECT_TRUE(Table().hasFocus());
    document_.Absorb([](CloneImage& image) { image.SetBankSize(0, 1); });
    page_.SelectGroup(0);
    Click(page_, "cmbDisAll");
    EXPECT_EQ(document_.History().undoText().toStdString(), "Disable All (Bank 0, 1 channel)");
}

TEST_F(MemoryPageTest, EveryOperationIsDrawnAtOnceAndOffIsGrey)
{
    QSignalSpy drawn(Table().model(), &QAbstractItemModel::dataChanged);
    const auto colour = [this] {
        return Table().model()->index(0, 0).data(Qt::ForegroundRole).value<QBrush>().color();
    };
    const QPalette palette = QGuiApplication::palette();
    for (const char* button : {"cmbDisable", "cmbEnable", "cmbInsert", "cmbDelete", "cmbClear", "cmbClAll"}) {
        drawn.clear();
        dialogs_.answers = {QMessageBox::Ok};
        Click(page_, button);
        EXPECT_FALSE(drawn.empty()) << button;
        EXPECT_EQ(colour(), image_.MemEnable(0) ? palette.color(QPalette::WindowText)
                                                : OffColour(palette, QPalette::Base))
            << button;
        EXPECT_EQ(Table().model()->index(0, 0).data(Qt::FontRole).value<QFont>().italic(),
                  !image_.MemEnable(0));
    }
}

TEST_F(MemoryPageTest, InsertAndDeleteWorkOnTheFirstTwoHundredRowsByTableRow)
{
    page_.SelectGroup(1);
    GoTo(2);
    Table().setFocus();
    QTest::keyClick(&Table(), Qt::Key_Insert);
    ExpectFrequencies({{1, ""}, {2, "101.000000"}, {200, "300.000000"}});
    dialogs_.answers = {QMessageBox::Ok};
    QTest::keyClick(&Table(), Qt::Key_Delete);
    ExpectFrequencies({{1, "101.000000"}, {199, ""}});

    dialogs_.asked.clear();
    page_.SelectGroup(kSelectAll);
    GoTo(201);
    Click(page_, "cmbDelete");
    EXPECT_TRUE(dialogs_.asked.empty());
}

TEST_F(MemoryPageTest, GoesToRowsInTheGroupShownOrTheSmallestThatHoldsThem)
{
    struct
    {
        int shown;
        std::vector<int> rows;
        int selector;
        int tableRow;
    } const cases[] = {
        {kSelectAll, {202}, kSelectAll, 203},
        {1, {202, 203}, 1, 3},
        {0, {202, 203}, 1, 3},
        {0, {199, 200}, 0, 200},
        {2, {199, 200}, kSelectAll, 200},
        {0, {1101}, kSelectSearchPass, 2},
        {1, {}, 1, 1},
    };
    for (const auto& row : cases) {
        page_.SelectGroup(row.shown);
        page_.GoToFirstRow();
        page_.GoToRows(row.rows);
        EXPECT_EQ(page_.Selector(), row.selector) << testing::PrintToString(row.rows);
        EXPECT_EQ(page_.CurrentTableRow(), row.tableRow) << testing::PrintToString(row.rows);
    }
}

TEST_F(MemoryPageTest, EnterAndDoubleClickAskForTheEditor)
{
    QSignalSpy modify(&page_, &MemoryPage::ModifyRequested);
    page_.SelectGroup(kSelectSearchPass);
    GoTo(3);
    QTest::keyClick(&Table(), Qt::Key_Return);
    const QPoint place = Table().visualRect(Table().model()->index(4, 2)).center();
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(Table().viewport(), Qt::LeftButton, {}, place);
    ASSERT_EQ(modify.count(), 2);
    EXPECT_EQ(modify[0][0].toInt(), 1102);
}

TEST_F(MemoryPageTest, FindsWhileTypingAndEnterGoesToTheHitInItsBank)
{
    document_.Absorb([](CloneImage& image) { image.MemData(1101) = image.MemData(202); });
    page_.SelectGroup(kSelectAll);
    TypeToFind("302");
    ASSERT_TRUE(Found().isVisible());
    ASSERT_EQ(Found().count(), 2);
    EXPECT_TRUE(Found().item(0)->text().startsWith(QLatin1String("Bank 1, channel 2 ")));
    EXPECT_TRUE(Found().item(1)->text().contains(QLatin1String("Search Pass S1  ")));
    EXPECT_EQ(page_.Selector(), kSelectAll) << "typing goes nowhere";
    QTest::keyClick(&FindBox(), Qt::Key_Return);
    EXPECT_FALSE(Found().isVisible());
    EXPECT_TRUE(Table().hasFocus());
    EXPECT_EQ(page_.Selector(), 1);
    ExpectWholeRowSelected(3);

    const std::tuple<int, int, int> steps[] = {
        {1, kSelectSearchPass, 2}, {1, 1, 3}, {-1, kSelectSearchPass, 2}};
    for (const auto& [by, selector, tableRow] : steps) {
        page_.Finder().Step(by);
        EXPECT_EQ(page_.Selector(), selector);
        EXPECT_EQ(page_.CurrentTableRow(), tableRow);
    }
    document_.Absorb([](CloneImage& image) { ClearMemoryRow(image, 1101); });
    page_.Finder().Step(1);
    EXPECT_EQ(page_.Selector(), 1) << "what is gone is not found";

    TypeToFind("10");
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter})
        QTest::keyClick(&FindBox(), key);
    EXPECT_EQ(page_.Selector(), 0);
    ExpectWholeRowSelected(3);
    TypeToFind("105");
    QTest::mouseClick(Found().viewport(), Qt::LeftButton, {},
                      Found().visualItemRect(Found().item(0)).center());
    ExpectWholeRowSelected(6);
}

TEST_F(MemoryPageTest, EscAndNothingFoundLeaveEverythingWhereItIs)
{
    QSignalSpy left(&page_.Finder(), &FindBar::Left);
    TypeToFind("no such thing");
    ASSERT_EQ(Found().count(), 1);
    EXPECT_FALSE(Found().item(0)->flags().testFlag(Qt::ItemIsEnabled));
    QTest::keyClick(&FindBox(), Qt::Key_Return);
    EXPECT_TRUE(FindBox().hasFocus());
    QTest::keyClick(&FindBox(), Qt::Key_Escape);
    EXPECT_EQ(left.count(), 1);
    EXPECT_FALSE(Found().isVisible());
    EXPECT_TRUE(page_.Selector() == 0 && page_.CurrentTableRow() == 1);
}

TEST_F(MemoryPageTest, AFilterLeavesLabelsAndActsOnWhatIsShown)
{
    document_.Absorb([](CloneImage& image) {
        for (const int row : {203, 210, 299})
            image.MemData(row).enabled = false;
    });
    page_.SelectGroup(1);
    Filter().setCurrentText(QStringLiteral("Disabled"));
    ASSERT_EQ(Table().model()->rowCount(), 3);
    EXPECT_EQ(Table().model()->headerData(1, Qt::Vertical).toString(), QStringLiteral("10"));
    EXPECT_EQ(Table().model()->index(1, kFrequency).data().toString(), QStringLiteral("310.000000"));
    EXPECT_EQ(Find<QLabel>(page_, QStringLiteral("lblShown")).text(), QStringLiteral("3 of 150 rows"));
    EXPECT_TRUE(page_.IsFiltered());

    GoTo(2);
    Table().setFocus();
    for (const Qt::Key key : {Qt::Key_Insert, Qt::Key_Delete})
        QTest::keyClick(&Table(), key);
    for (const char* button : {"cmbInsert", "cmbDelete"})
        EXPECT_FALSE(Find<QPushButton>(page_, QLatin1String(button)).isEnabled()) << button;
    EXPECT_TRUE(Steps() == 0 && dialogs_.asked.empty());
    QSignalSpy modify(&page_, &MemoryPage::ModifyRequested);
    QTest::keyClick(&Table(), Qt::Key_Return);
    EXPECT_EQ(modify.at(0).at(0).toInt(), 210);

    Click(page_, "cmbEnable");
    EXPECT_TRUE(image_.MemEnable(210));
    EXPECT_EQ(Table().model()->rowCount(), 2);
    dialogs_.answers = {QMessageBox::Ok};
    Click(page_, "cmbClAll");
    EXPECT_EQ(dialogs_.asked.at(0).details.toStdString(),
              "This clears Bank 1, the 2 channels shown of 150. Edit > Undo brings it back.");
    EXPECT_EQ(document_.History().undoText().toStdString(),
              "Clear All (Bank 1, the 2 channels shown of 150)");
    ExpectFrequencies({{202, "302.000000"}, {203, ""}, {210, "310.000000"}, {299, ""}});
    EXPECT_EQ(Table().model()->rowCount(), 0);

    page_.GoToRow(210);
    EXPECT_FALSE(page_.IsFiltered()) << "what is gone to is shown";
    ExpectWholeRowSelected(11);
    EXPECT_TRUE(Find<QPushButton>(page_, QStringLiteral("cmbInsert")).isEnabled());
}

TEST_F(MemoryPageTest, TheWheelChangesTheBankOnlyWithTheFocus)
{
    auto& selector = Find<QComboBox>(page_, QStringLiteral("cbbBank"));
    const auto turn = [&] {
        QWheelEvent down({5, 5}, selector.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&selector, &down);
        return selector.currentIndex();
    };
    Table().setFocus();
    EXPECT_EQ(turn(), 0);
    selector.setFocus();
    EXPECT_EQ(turn(), 1);
    GoTo(140);
    Table().scrollToTop();
    selector.setCurrentIndex(kSelectAll);
    EXPECT_TRUE(Table().viewport()->rect().intersects(Table().visualRect(Table().currentIndex())));
}

TEST_F(MemoryPageTest, ThePopupShowsTwentyEntriesAndWhatTheyHold)
{
    auto& selector = Find<QComboBox>(page_, QStringLiteral("cbbBank"));
    selector.showPopup();
    const QAbstractItemView& popup = *selector.view();
    const int line = popup.visualRect(popup.model()->index(0, 0)).height();
    EXPECT_LE(popup.viewport()->height(), 20 * line);
    EXPECT_GE(popup.viewport()->height(), 19 * line);
    const auto picture = [&] {
        return selector.view()->viewport()->grab({0, 3 * line, 1000, line}).toImage();
    };
    const QImage before = picture();
    document_.Absorb([](CloneImage& image) { ClearMemoryRow(image, 250); });
    EXPECT_EQ(picture(), before) << "bank 3 is as it was";
    PutChannels({350 + 150, 1}, 100);
    EXPECT_NE(picture(), before);
    selector.hidePopup();
}

TEST_F(MemoryPageTest, WhatIsOffCanBeReadInEveryPaletteAndKeepsItsHue)
{
    struct
    {
        QRgb ground, selected, grey;
    } const palettes[] = {
        {0xFFFFFF, 0x308CC6, 0xBEBEBE}, {0x2D2D2D, 0x2A82DA, 0x606060}, {0xFFFFFF, 0x000080, 0x808080},
        {0x000000, 0xFFFF00, 0x3F3F3F}, {0xFDF6E3, 0xCB4B16, 0x93A1A1}, {0xFFFFFF, 0xFFFFFF, 0xFFFFFF},
    };
    for (const auto& colours : palettes) {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(colours.ground));
        palette.setColor(QPalette::Highlight, QColor(colours.selected));
        palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(colours.grey));
        for (const auto ground : {QPalette::Base, QPalette::Highlight}) {
            const QColor off = OffColour(palette, ground);
            EXPECT_GE(Contrast(off, palette.color(ground)), 4.5) << std::hex << colours.ground;
            if (QColor(colours.grey).hslSaturation() > 0) {
                EXPECT_NEAR(off.hslHue(), QColor(colours.grey).hslHue(), 12);
            }
        }
    }
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);

    const QPalette usual = QGuiApplication::palette();
    QPalette dark = usual;
    dark.setColor(QPalette::Base, QColor(0x1B1E20));
    dark.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    dark.setColor(QPalette::Link, QColor(0, 0, 255));
    QGuiApplication::setPalette(dark);
    KeepTextsReadable();
    const QPalette mended = QGuiApplication::palette();
    for (const auto role : {QPalette::PlaceholderText, QPalette::Link})
        EXPECT_GE(Contrast(mended.color(role), mended.color(QPalette::Base)), 4.5);
    EXPECT_EQ(mended.color(QPalette::Base), dark.color(QPalette::Base));
    QGuiApplication::setPalette(usual);
}

TEST_F(MemoryPageTest, DraggedWidthsStayUntilTheyAreForgotten)
{
    QHeaderView& titles = *Table().horizontalHeader();
    const int usual = Table().columnWidth(kTone);
    const QPoint edge(titles.sectionViewportPosition(kTone) + usual - 1, titles.height() / 2);
    QTest::mousePress(titles.viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(titles.viewport(), edge + QPoint(40, 0));
    QTest::mouseRelease(titles.viewport(), Qt::LeftButton, {}, edge + QPoint(40, 0));
    const int dragged = Table().columnWidth(kTone);
    ASSERT_GT(dragged, usual + 20);
    page_.hide();
    page_.show();
    EXPECT_EQ(Table().columnWidth(kTone), dragged) << "as after a change of the tab";
    MemoryPage next{document_, dialogs_, nullptr};
    next.show();
    EXPECT_EQ(Find<QTableView>(next, QStringLiteral("MSFlexGrid1")).columnWidth(kTone), dragged);
    Find<QAction>(page_, QStringLiteral("popUsualWidths")).trigger();
    EXPECT_EQ(Table().columnWidth(kTone), usual);
}

TEST_F(MemoryPageTest, ButtonsFoldAwayAndStaySo)
{
    const int width = Table().width();
    Click(page_, "cmbFold");
    EXPECT_FALSE(Find<QWidget>(page_, QStringLiteral("cmbEnable")).isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return Table().width() > width + 50; }));
    MemoryPage next{document_, dialogs_, nullptr};
    next.show();
    EXPECT_FALSE(Find<QWidget>(next, QStringLiteral("cmbEnable")).isVisible());
    Click(page_, "cmbFold");
    EXPECT_TRUE(Find<QWidget>(page_, QStringLiteral("cmbEnable")).isVisible());
}

TEST_F(MemoryPageTest, TheViewOfAllRowsTellsBankAndChannel)
{
    const auto place = [this](int row) {
        return Table().model()->index(row, 2).data(Qt::ToolTipRole).toString().toStdString();
    };
    EXPECT_EQ(place(5), "");
    QSignalSpy told(&page_, &MemoryPage::HintChanged);
    page_.SelectGroup(kSelectAll);
    EXPECT_EQ(place(202), "Bank 1, channel 2");
    EXPECT_EQ(place(1101), "Search Pass S1");
    document_.Absorb([](CloneImage& image) { image.SetBankSize(9, 49); });
    EXPECT_EQ(place(999), "In no bank");
    told.clear();
    GoTo(203);
    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(Table().statusTip().toStdString(), "Bank 1, channel 2");
}

}  // namespace
}  // namespace rqm5
