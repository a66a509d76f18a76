#include "app/form_texts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTranslator>
#include <QVBoxLayout>

namespace rqm5 {
namespace {

/// Knows a few texts, in the context of a plain widget.
class TestTranslator : public QTranslator
{
  public:
    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const bool isKnown = qstrcmp(context, "QWidget") == 0 && qstrncmp(source, "Unknown", 7) != 0;
        return isKnown ? QStringLiteral("<") + QString::fromUtf8(source) + QStringLiteral(">") : QString();
    }
};

struct Form : QWidget
{
    Form()
    {
        setWindowTitle(QStringLiteral("Title"));
        label.setText(QStringLiteral("Volume"));
        value.setText(QStringLiteral("Unknown 30"));
        button.setText(QStringLiteral("Read"));
        button.setToolTip(QStringLiteral("Reads"));
        file->setObjectName(QStringLiteral("mnuFile"));
        open = file->addAction(QStringLiteral("Open"));
        tabs.addTab(new QWidget, QStringLiteral("Memory"));
        tabs.setTabToolTip(0, QStringLiteral("Channels"));
    }

    QStringList Texts() const
    {
        return {windowTitle(), label.text(), value.text(),    button.text(),     button.toolTip(),
                file->title(), open->text(), tabs.tabText(0), tabs.tabToolTip(0)};
    }

    QLabel label{this};
    QLabel value{this};
    QPushButton button{this};
    QMenuBar bar{this};
    QMenu* file = bar.addMenu(QStringLiteral("File"));
    QAction* open;
    QTabWidget tabs{this};
};

TEST(FormTexts, ComeAndGoWithTheTranslation)
{
    Form form;
    const QStringList designed = form.Texts();
    SetFormTexts(form);
    EXPECT_EQ(form.Texts(), designed) << "no translation is loaded";

    TestTranslator translator;
    QApplication::installTranslator(&translator);
    for (int i = 0; i < 2; ++i) {
        SetFormTexts(form);
        EXPECT_EQ(
            form.Texts().join(QLatin1Char(' ')),
            QStringLiteral("<Title> <Volume> Unknown 30 <Read> <Reads> <File> <Open> <Memory> <Channels>"));
    }
    form.value.setText(QStringLiteral("Unknown 31"));

    QApplication::removeTranslator(&translator);
    SetFormTexts(form);
    QStringList expected = designed;
    expected[2] = QStringLiteral("Unknown 31");
    EXPECT_EQ(form.Texts(), expected);
}

}  // namespace
}  // namespace rqm5
