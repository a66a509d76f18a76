#include <QMenu>
#include <QTableView>
#include <set>

#include "app/language_menu.h"
#include "app/window_fixture.h"
#include "language/language.h"

namespace rqm5 {
namespace {

class LanguageMenuTest : public WindowTest
{
  protected:
    void TearDown() override
    {
        WindowTest::TearDown();
        Language::OfProgram().Use(QStringLiteral("en"));
    }

    void Choose(const char* item)
    {
        Item(item).trigger();
        QCoreApplication::processEvents();
    }

    /// Whatever the window says where something has a name.
    std::set<std::string> Texts()
    {
        std::set<std::string> texts;
        for (const QObject* object : window_->findChildren<QObject*>())
            for (const char* property : {"text", "title", "placeholderText", "toolTip", "statusTip",
                                         "accessibleName", "windowTitle", "currentText"})
                if (const QString text = object->property(property).toString();
                    !object->objectName().isEmpty() && !text.isEmpty())
                    texts.insert(object->objectName().toStdString() + ": " + text.toStdString());
        return texts;
    }
};

TEST_F(LanguageMenuTest, SaysEverythingAnewAndComesBackToWhatWasSaid)
{
    Start();
    EditSomething();
    GoTo(Tab::Memory);
    const auto english = Texts();
    Choose("mnuLanguage_de");
    EXPECT_EQ(Find<QMenu>("mnuFile").title().toStdString(), "&Datei");
    EXPECT_NE(StatusText("lblFileState"), QStringLiteral("Changed"));
    const QAbstractItemModel& table = *Find<QTableView>("MSFlexGrid1").model();
    EXPECT_EQ(table.headerData(0, Qt::Horizontal).toString().toStdString(), "Frequenz");
    EXPECT_EQ(ChosenLanguage().toStdString(), "de");
    Choose("mnuLanguage_ja");
    EXPECT_EQ(table.headerData(0, Qt::Horizontal).toString().toStdString(), "周波数");
    EXPECT_TRUE(Item("mnuLanguage_ja").isChecked());
    EXPECT_FALSE(Item("mnuLanguage_de").isChecked());
    Choose("mnuLanguage_en");
    const auto again = Texts();
    for (const std::string& text : english)
        EXPECT_TRUE(again.contains(text)) << "gone: " << text;
    for (const std::string& text : again)
        EXPECT_TRUE(english.contains(text)) << "new: " << text;
    Choose("mnuLanguageSystem");
    EXPECT_EQ(ChosenLanguage().toStdString(), "");
    EXPECT_EQ(Language::OfProgram().Code(), SystemLanguage());
}

TEST_F(LanguageMenuTest, ShowsStepsThatWereMadeInAnotherLanguage)
{
    Start();
    EditSomething();
    const QString english = Item("mnuHistoryUndo").text();
    Choose("mnuLanguage_fr");
    const QString french = Item("mnuHistoryUndo").text();
    EXPECT_NE(french, english);
    EXPECT_FALSE(french.contains(QLatin1String("Scan Mode"))) << french.toStdString();
    Item("mnuHistoryUndo").trigger();
    Item("mnuHistoryRedo").trigger();
    EXPECT_EQ(Item("mnuHistoryUndo").text(), french);
    Choose("mnuLanguage_en");
    EXPECT_EQ(Item("mnuHistoryUndo").text(), english);
}

}  // namespace
}  // namespace rqm5
