#include <QComboBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTreeWidget>

#include "app/receiver_window_fixture.h"
#include "document/document.h"
#include "files/file_store.h"
#include "language/language.h"

namespace rqm5 {
namespace {

class CompareTest : public ReceiverWindowTest
{
  protected:
    QTreeWidget& Tree() { return Find<QTreeWidget>("lstCompare"); }
    QString Count() { return StatusText("lblCompareCount"); }
    QPushButton& Button(const char* name) { return Find<QPushButton>(name); }
    QString StepName() { return Item("mnuHistoryUndo").text(); }

    void CompareWithFile(const CloneImage& other)
    {
        SaveCloneFile(Path("other.RQ5"), other);
        dialogs_.files = {Path("other.RQ5")};
        Item("mnuToolsCompare").trigger();
        Button("cmbCompareFile").click();
    }

    QTreeWidgetItem& Row(int group, int row) { return *Tree().topLevelItem(group)->child(row); }
};

TEST_F(CompareTest, ShowsBothSidesAndTakesRowsGroupsAndEverything)
{
    Item("mnuReAll").trigger();
    CloneImage other = demo_;
    other.MemData(0).mode = 2;
    other.MemData(3).note = "Tower";
    other.MemData(201) = other.MemData(4);
    other.Settings().volume = 7;
    CompareWithFile(other);
    EXPECT_EQ(Count(), QStringLiteral("Differences: 4"));
    ASSERT_EQ(Tree().topLevelItemCount(), 3);
    EXPECT_EQ(Row(0, 0).text(3), QStringLiteral("Mode"));
    Row(0, 0).setExpanded(true);
    const QTreeWidgetItem* mode = Row(0, 0).child(1);
    EXPECT_EQ(mode->text(0), QStringLiteral("≠ Mode"));
    EXPECT_NE(mode->text(1), mode->text(2));
    EXPECT_TRUE(mode->font(0).bold());
    EXPECT_FALSE(Row(0, 0).child(0)->font(0).bold());

    Find<QComboBox>("cbbBank").setCurrentIndex(0);
    // A double click goes to the row in its group.
    emit Tree().itemDoubleClicked(&Row(1, 0), 0);
    EXPECT_EQ(Tabs().currentIndex(), static_cast<int>(Tab::Memory));
    EXPECT_EQ(Find<QComboBox>("cbbBank").currentIndex(), 3);
    emit Tree().itemDoubleClicked(&Row(2, 0), 0);
    EXPECT_EQ(Tabs().currentIndex(), static_cast<int>(Tab::Settings1));

    Tree().setCurrentItem(&Row(0, 0));
    Button("cmbTakeSelected").click();
    EXPECT_EQ(StepName(), QStringLiteral("&Undo Take from other.RQ5 (Bank 0, channel 0)"));
    EXPECT_EQ(Count(), QStringLiteral("Differences: 3"));
    EXPECT_TRUE(Row(0, 0).isSelected()) << "what comes next is current";
    auto& group = Find<QComboBox>("cbbCompareGroup");
    group.setCurrentIndex(group.findText(QStringLiteral("Settings")));
    emit group.activated(group.currentIndex());
    EXPECT_EQ(Count(), QStringLiteral("1 of 3 differences"));
    EXPECT_EQ(Row(0, 0).text(0), QStringLiteral("≠ Volume"));
    group.setCurrentIndex(0);
    auto& what = Find<QComboBox>("cbbCompareWhat");
    what.setCurrentIndex(what.findText(QStringLiteral("Note")));
    emit what.activated(what.currentIndex());
    EXPECT_EQ(Count(), QStringLiteral("1 of 3 differences"));
    Button("cmbTakeAll").click();
    EXPECT_EQ(Count(), QStringLiteral("0 of 2 differences"));
    what.setCurrentIndex(0);
    emit what.activated(0);
    Button("cmbTakeAll").click();
    EXPECT_EQ(Count(), QStringLiteral("Nothing differs."));
    EXPECT_FALSE(Button("cmbTakeAll").isEnabled());
    // Each was a step, and the window follows.
    Item("mnuHistoryUndo").trigger();
    QTRY_COMPARE(Count(), QStringLiteral("Differences: 2"));
    Item("mnuHistoryUndo").trigger();
    Item("mnuHistoryUndo").trigger();
    QTRY_COMPARE(Count(), QStringLiteral("Differences: 4"));
}

TEST_F(CompareTest, ComparesWithTheReceiverAndItsLastReadWithoutTouchingTheImage)
{
    Item("mnuToolsCompare").trigger();
    EXPECT_FALSE(Button("cmbCompareLastRead").isEnabled());
    const QString untouched = StepName();
    At(600, [this] {
        EXPECT_FALSE(Button("cmbCompareFile").isEnabled());
        EXPECT_FALSE(Button("cmbTakeAll").isEnabled());
        EXPECT_TRUE(Find<QProgressBar>("ProgressBar1").text().startsWith(QStringLiteral("Reading ")));
    });
    Button("cmbCompareReceiver").click();
    EXPECT_TRUE(StatusText("lblHint").contains(QStringLiteral(" to compare; "))) << "how long it took";
    EXPECT_EQ(StepName(), untouched);
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("New"));
    EXPECT_GT(Tree().topLevelItemCount(), 3);
    Button("cmbTakeAll").click();
    EXPECT_EQ(Count(), QStringLiteral("Nothing differs."));
    EXPECT_EQ(StepName().section(QLatin1Char('('), 0, 0), QStringLiteral("&Undo Take from the receiver "));

    EditSomething();
    Button("cmbCompareLastRead").click();
    EXPECT_EQ(Count(), QStringLiteral("Differences: 1"));
    Button("cmbTakeSelected").click();
    EXPECT_EQ(Count(), QStringLiteral("Nothing differs."));

    // A read that is cancelled or fails leaves the comparison as it was.
    At(100, [this] { Click("cmbCancel"); });
    Button("cmbCompareReceiver").click();
    EXPECT_TRUE(dialogs_.asked.empty());
    port_.Close();
    port_.SetDevice(Path("nowhere"));
    Button("cmbCompareReceiver").click();
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].text, QStringLiteral("COM Port Error"));
    EXPECT_FALSE(Button("cmbCompareLastRead").isEnabled()) << "another port may have another receiver";
    EXPECT_TRUE(StatusText("lblCompareSource").contains(QStringLiteral("as it was read")));
}

TEST_F(CompareTest, LastReadIsWhatIsKnownOfTheReceiverUntilItIsRead)
{
    Item("mnuWrAll").trigger();
    Item("mnuToolsCompare").trigger();
    Button("cmbCompareLastRead").click();
    EXPECT_TRUE(StatusText("lblCompareSource").contains(QStringLiteral("read or written since")));
    EXPECT_EQ(Count(), QStringLiteral("Nothing differs."));
}

TEST_F(CompareTest, KeepsWhatIsSelectedAndOpenInAnotherLanguage)
{
    if (!QFile::exists(QStringLiteral(":/translations/rq-m5_fr.qm")))
        GTEST_SKIP() << "built without translations";
    Item("mnuReAll").trigger();
    CloneImage other = demo_;
    for (const int row : {0, 1, 3})
        other.MemData(row).mode = 2;
    CompareWithFile(other);
    Tree().setCurrentItem(&Row(0, 2));
    Row(0, 0).setSelected(true);
    Row(0, 1).setExpanded(true);
    Item("mnuToolsDuplicates").trigger();
    auto& twice = Find<QTreeWidget>("lstDuplicates");
    ASSERT_GT(twice.topLevelItemCount(), 1);
    twice.topLevelItem(0)->setExpanded(false);
    twice.setCurrentItem(twice.topLevelItem(1)->child(1));
    const QString english = Tree().topLevelItem(0)->text(0);

    Language::OfProgram().Use(QStringLiteral("fr"));
    QCoreApplication::processEvents();
    EXPECT_NE(Tree().topLevelItem(0)->text(0), english);
    const QDateTime saved = QFileInfo(Path("other.RQ5")).lastModified();
    EXPECT_TRUE(StatusText("lblCompareSource").contains(Language::OfProgram().ShortTime(saved)));
    EXPECT_TRUE(Row(0, 0).isSelected() && !Row(0, 1).isSelected() && Row(0, 2).isSelected());
    EXPECT_TRUE(Row(0, 1).isExpanded());
    EXPECT_FALSE(twice.topLevelItem(0)->isExpanded());
    EXPECT_TRUE(twice.topLevelItem(1)->isExpanded());
    EXPECT_EQ(twice.currentItem(), twice.topLevelItem(1)->child(1));
    Language::OfProgram().Use(QStringLiteral("en"));
    QCoreApplication::processEvents();
    EXPECT_EQ(Tree().topLevelItem(0)->text(0), english);
}

}  // namespace
}  // namespace rqm5
