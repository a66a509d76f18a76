#include <QFile>
#include <QMenu>

#include "app/window_fixture.h"
#include "files/file_store.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

class RecentFilesTest : public WindowTest
{
  protected:
    QStringList Offered()
    {
        QStringList names;
        for (const QAction* item : Find<QMenu>("mnuFileRecent").actions())
            if (!item->isSeparator())
                names << item->objectName() + QLatin1Char(' ') + QFileInfo(item->toolTip()).fileName();
        return names;
    }

    void Choose(const char* item)
    {
        Item(item).trigger();
        QCoreApplication::processEvents();
    }
};

TEST_F(RecentFilesTest, TheLatestComesFirstAndOneThatIsGoneIsForgotten)
{
    for (const char* name : {"a&b.RQ5", "b.RQ5"})
        ASSERT_FALSE(SaveCloneFile(Path(name), StartUpImage(0)).problem);
    Start();
    EXPECT_FALSE(Find<QMenu>("mnuFileRecent").menuAction()->isEnabled());
    dialogs_.files = {Path("a&b.RQ5"), Path("b.RQ5"), Path("c.RQ5")};
    Item("mnuFileOpen").trigger();
    Item("mnuFileOpen").trigger();
    Item("mnuFileSaveAs").trigger();
    EXPECT_EQ(Offered(),
              QStringList({QStringLiteral("mnuFileRecent_0 c.RQ5"), QStringLiteral("mnuFileRecent_1 b.RQ5"),
                           QStringLiteral("mnuFileRecent_2 a&b.RQ5"),
                           QStringLiteral("mnuFileRecentClear Empty This List")}));
    EditSomething();
    Choose("mnuFileRecent_2");
    EXPECT_EQ(dialogs_.asked.size(), 1U) << "unsaved changes are asked about";
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("c.RQ5 - "))) << "cancelled";
    dialogs_.answers = {QMessageBox::No};
    Choose("mnuFileRecent_2");
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("a&b.RQ5 - ")));
    EXPECT_EQ(Offered().front(), QStringLiteral("mnuFileRecent_0 a&b.RQ5"));
    QFile::remove(Path("c.RQ5"));
    Choose("mnuFileRecent_1");
    EXPECT_EQ(dialogs_.asked.back().text.toStdString(), kFileOpenError);
    EXPECT_EQ(Offered().size(), 3);
    Choose("mnuFileRecentClear");
    EXPECT_TRUE(Offered().isEmpty());
    EXPECT_FALSE(Find<QMenu>("mnuFileRecent").menuAction()->isEnabled());
}

}  // namespace
}  // namespace rqm5
