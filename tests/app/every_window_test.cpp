#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSettings>
#include <QSysInfo>
#include <QTabBar>
#include <QToolButton>
#include <QTranslator>
#include <map>
#include <set>

#include "app/window_tour.h"
#include "language/language.h"

namespace rqm5 {
namespace {

constexpr QChar kOpen(0x27E6);
constexpr QChar kClose(0x27E7);

/// Says everything that a catalog has in a language of its own: longer, with accents, with marks for right to
/// left.
class Pseudo : public QTranslator
{
  public:
    Pseudo() { EXPECT_TRUE(known_.load(QStringLiteral(":/translations/rq-m5_de.qm"))); }

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* source, const char* comment, int count) const override
    {
        if (known_.translate(context, source, comment, count).isEmpty())
            return {};
        QString text = QString::fromUtf8(source);
        const bool hasDots = text.endsWith(QLatin1String("..."));
        text.chop(hasDots ? 3 : 0);
        text.replace(u'o', QChar(0x00F6)).replace(u'e', QChar(0x00E9));
        return kOpen + QString(QChar(0x200F)) + text + QString(text.size() / 3, u'~') + kClose +
               (hasDots ? QStringLiteral("...") : QString());
    }

  private:
    QTranslator known_;
};

bool IsStandardButton(const QWidget& widget)
{
    const auto* box = qobject_cast<QDialogButtonBox*>(widget.parentWidget());
    auto* button = qobject_cast<QPushButton*>(const_cast<QWidget*>(&widget));
    return box != nullptr && button != nullptr && box->standardButton(button) != QDialogButtonBox::NoButton;
}

QString TextOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->textFormat() == Qt::RichText ? QString() : label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        return group->title();
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->placeholderText();
    return {};
}

/// Every text of a window by what it stands on: of controls that show, menus, tabs and table headers.
std::multimap<QString, QString> TextsOf(QWidget& window)
{
    std::multimap<QString, QString> texts = {{QStringLiteral("title"), window.windowTitle()}};
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || IsStandardButton(*widget))
            continue;
        for (const QString& text :
             {TextOf(*widget), widget->toolTip(), widget->statusTip(), widget->accessibleName()})
            texts.emplace(
                QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->objectName(), text);
        if (const auto* box = qobject_cast<const QComboBox*>(widget))
            texts.emplace(QStringLiteral("item of ") + widget->objectName(), box->itemText(0));
        if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                texts.emplace(QStringLiteral("tab"), tabs->tabText(i));
        if (const auto* header = qobject_cast<const QHeaderView*>(widget);
            header != nullptr && header->orientation() == Qt::Horizontal && header->model() != nullptr)
            for (int i = 0; i < header->count(); ++i)
                texts.emplace(QStringLiteral("header"),
                              header->model()->headerData(i, Qt::Horizontal).toString());
    }
    for (const QAction* action : window.findChildren<QAction*>())
        if (!action->objectName().isEmpty())
            for (const QString& text : {action->text(), action->statusTip()})
                texts.emplace(action->objectName(), text);
    return texts;
}

/// What is the same in every language: names, numbers, units, values of the receiver, paths, the build.
bool IsSameEverywhere(const QString& text)
{
    static const QRegularExpression names(
        QStringLiteral("\\((Strg|Alt)\\+[^)]*\\)|^/.*|Tervan RQ-M5 Clone Utility|RQ-M5[ \\w]*|Sibling "
                       "\\d|[kKM]?Hz|Rev\\.|(^|\\s)/\\S+|[\\w-]+\\.(csv|RQ5)|"
                       "\\b[0-9a-f]{7,}(-dirty)?|sec\\b"));
    static const QRegularExpression word(QStringLiteral("[a-z]{2}"));
    static const QRegularExpression said(QStringLiteral("⟦[^⟦⟧]*⟧"));
    // A message can hold another one, which is a piece inside a piece.
    QString rest = text;
    while (rest.contains(said))
        rest.remove(said);
    return !rest.remove(names).contains(word);
}

/// Languages are called by their own names, and titles of an imported list stand as they are.
bool IsOfSomebodyElse(const QString& place, const QString& text)
{
    static const QStringList imported = {QStringLiteral("Dienst"), QStringLiteral("Betriebsart"),
                                         QStringLiteral("Ort"), QStringLiteral("Frequenz MHz")};
    return text.startsWith(QSysInfo::prettyProductName()) ||
           place.startsWith(QLatin1String("mnuLanguage_")) ||
           place.contains(QLatin1String("qt_dockwidget")) ||
           (place == QLatin1String("header") && imported.contains(text));
}

void ExpectTranslated(QWidget& window, const QString& name)
{
    std::set<QString> missing;
    for (const auto& [place, text] : TextsOf(window))
        if (!IsSameEverywhere(text) && !IsOfSomebodyElse(place, text))
            missing.insert(place + QStringLiteral(": ") + text);
    for (const QString& text : missing)
        ADD_FAILURE() << name.toStdString() << ": not translated: " << text.toStdString();
}

/// The letter that a text gives to the Alt key, none for a text without.
QString Letter(const QString& text)
{
    return QKeySequence::mnemonic(text).toString();
}

void ExpectOwnLetters(const std::vector<QString>& texts, const std::string& where)
{
    std::map<QString, QString> owners;
    for (const QString& text : texts)
        if (const QString letter = Letter(text); !letter.isEmpty()) {
            const auto [owner, isFree] = owners.try_emplace(letter, text);
            EXPECT_TRUE(isFree || owner->second == text)
                << where << ": " << letter.toStdString() << ": " << owner->second.toStdString() << " and "
                << text.toStdString();
        }
}

/// Letters are unique within a menu, and within what a window shows together with its menu bar.
void ExpectOwnLetters(QWidget& window, const std::string& name)
{
    std::vector<QString> shown;
    for (const QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisibleTo(&window))
            shown.push_back(TextOf(*widget));
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>())
        for (const QAction* title : bar->actions())
            shown.push_back(title->text());
    ExpectOwnLetters(shown, name);
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        std::vector<QString> items;
        for (const QAction* item : menu->actions())
            items.push_back(item->text());
        ExpectOwnLetters(items, name + " menu " + menu->title().toStdString());
    }
}

/// A control is as wide as its text needs. What shortens its text by design says all of it in its tooltip.
void ExpectWhole(QWidget& window, const std::string& name)
{
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<QLabel*>(widget);
        const bool isText =
            (label != nullptr && !label->text().isEmpty()) || qobject_cast<QPushButton*>(widget) != nullptr ||
            qobject_cast<QRadioButton*>(widget) != nullptr || qobject_cast<QCheckBox*>(widget) != nullptr;
        const bool mayShorten = widget->inherits("rqm5::ElidedLabel") || !widget->toolTip().isEmpty();
        if (!isText || mayShorten || !widget->isVisibleTo(&window))
            continue;
        const bool isWrapped = label != nullptr && label->wordWrap();
        const int needed = isWrapped ? widget->heightForWidth(widget->width()) : widget->sizeHint().width();
        EXPECT_LE(needed, isWrapped ? widget->height() : widget->width())
            << name << ": " << TextOf(*widget).toStdString();
    }
    // What scrolls up and down alone shows all of its width.
    for (const QScrollArea* area : window.findChildren<QScrollArea*>()) {
        const bool isHeld = area->isVisibleTo(&window) && area->widget() != nullptr &&
                            area->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff;
        EXPECT_LE(isHeld ? area->widget()->width() : 0, area->viewport()->width())
            << name << ": a page is cut";
    }
}

/// Whoever works without eyes or without a mouse hears what a control is and what it is for.
void ExpectNamed(QWidget& window, const std::string& name)
{
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || (widget->focusPolicy() & Qt::TabFocus) == 0 ||
            widget->focusProxy() != nullptr)
            continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(face, nullptr);
        const std::string what =
            name + ": " + widget->metaObject()->className() + " " + widget->objectName().toStdString();
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty()) << what << " has no name";
        EXPECT_NE(face->role(), QAccessible::NoRole) << what;
        EXPECT_NE(face->role(), QAccessible::Client) << what << " has no role";
    }
}

class EveryWindow : public testing::TestWithParam<const char*>
{
  protected:
    void SetUp() override
    {
        QSettings(QStringLiteral("Tervan"), QStringLiteral("Tervan RQ-M5 Clone Utility")).clear();
    }
    void TearDown() override { Language::OfProgram().Use(QStringLiteral("en")); }
};

TEST_P(EveryWindow, HasWholeTextsAndLettersOfTheirOwn)
{
    const QFont usual = QApplication::font();
    Language::OfProgram().Use(QLatin1String(GetParam()));
    WindowTour tour([&](QWidget& window, const QString& name) {
        ExpectOwnLetters(window, name.toStdString());
        ExpectNamed(window, name.toStdString());
        for (const int percent : {100, 150, 200}) {
            // A message box measures itself once, when it comes up.
            if (percent > 100 && window.inherits("QMessageBox"))
                break;
            QFont font = usual;
            font.setPointSizeF(usual.pointSizeF() * percent / 100);
            QApplication::setFont(font);
            QCoreApplication::processEvents();
            if (window.isWindow() && window.inherits("QDialog"))
                window.resize(window.sizeHint().expandedTo(window.size()));
            QCoreApplication::processEvents();
            ExpectWhole(window, name.toStdString() + " at " + std::to_string(percent) + " %");
        }
        QApplication::setFont(usual);
        QCoreApplication::processEvents();
    });
    tour.Start();
    tour.Go();
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryWindow, testing::Values("en", "de", "es", "fr", "ja"),
                         [](const auto& language) { return std::string(language.param); });

TEST(EveryText, PassesThroughTheTranslationAndFollowsTheLanguage)
{
    Pseudo pseudo;
    // The program is started in English, and the language changes while it is open.
    Language::OfProgram().Use(QStringLiteral("en"));
    {
        bool isTranslated = false;
        std::multiset<QString> seen;
        WindowTour tour([&](QWidget& window, const QString& name) {
            seen.insert(name);
            if (isTranslated)
                ExpectTranslated(window, name);
        });
        tour.Start();
        isTranslated = true;
        QCoreApplication::installTranslator(&pseudo);
        Language::OfProgram().Use(QStringLiteral("de"));
        tour.Go();
        QCoreApplication::removeTranslator(&pseudo);
        EXPECT_EQ(seen.count(QStringLiteral("dlgWriteConflicts")), 1U);
        EXPECT_EQ(seen.count(QStringLiteral("question")), 3U);
    }
    Language::OfProgram().Use(QStringLiteral("en"));
}

}  // namespace
}  // namespace rqm5
