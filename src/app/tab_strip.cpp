#include "app/tab_strip.h"

#include <QCoreApplication>
#include <QHoverEvent>
#include <QShortcut>
#include <QStatusTipEvent>
#include <QTabBar>

#include "ui/follow_focus.h"

namespace rqm5 {

namespace {

struct TabRow
{
    const char* caption;
    const char* key;
    const char* toolTip;
};

#define TEXT(text) QT_TRANSLATE_NOOP("rqm5::frmMain", text)

constexpr TabRow kTabRows[kTabs] = {
    {TEXT("Settings 1"), "Set1", TEXT("Model, modes, volume, squelch and the VFO bands")},
    {TEXT("Settings 2"), "", TEXT("Display, power, keys, sound and antennas")},
    {TEXT("Memory"), "", TEXT("The memory channels")},
    {TEXT("Bank"), "", TEXT("Sizes and links of the memory banks")},
};

#undef TEXT

}  // namespace

TabStrip::TabStrip(QWidget* parent) : QTabWidget(parent)
{
    setObjectName(QStringLiteral("TabStrip1"));
    // Connected before the tab widget itself connects to the bar: listeners of AboutToSwitch run while the
    // page that is being left is still in front.
    auto* bar = new QTabBar(this);
    connect(bar, &QTabBar::currentChanged, this, &TabStrip::AboutToSwitch);
    setTabBar(bar);
    bar->installEventFilter(this);
    setDocumentMode(false);
    for (int i = 0; i < kTabs; ++i) {
        auto* frame = new QScrollArea(this);
        frame->setObjectName(QStringLiteral("Frame1_%1").arg(i));
        frame->setWidgetResizable(true);
        frame->setFrameShape(QFrame::NoFrame);
        frame->setFocusPolicy(Qt::NoFocus);
        FollowFocus(*frame);
        Frame1_.at(static_cast<std::size_t>(i)) = frame;
        addTab(frame, QString::fromUtf8(kTabRows[i].caption));
        setTabToolTip(i, QString::fromUtf8(kTabRows[i].toolTip));
        bar->setTabData(i, QLatin1String(kTabRows[i].key));
    }
    connect(this, &QTabWidget::currentChanged, this, &TabStrip::TabStrip1_Click);
    const QKeySequence next(Qt::CTRL | Qt::Key_PageDown);
    const QKeySequence previous(Qt::CTRL | Qt::Key_PageUp);
    // Tables keep Ctrl+Tab for themselves, so that the tab widget never sees it from there.
    AddStepKeys(QKeySequence::keyBindings(QKeySequence::NextChild) + QList{next}, 1);
    AddStepKeys(QKeySequence::keyBindings(QKeySequence::PreviousChild) + QList{previous}, kTabs - 1);
}

void TabStrip::AddStepKeys(const QList<QKeySequence>& keys, int step)
{
    auto* shortcut = new QShortcut(this);
    shortcut->setKeys(keys);
    connect(shortcut, &QShortcut::activated, this,
            [this, step] { setCurrentIndex((currentIndex() + step) % kTabs); });
}

void TabStrip::SetPage(Tab tab, QWidget& page)
{
    Frame1_.at(static_cast<std::size_t>(tab))->setWidget(&page);
}

void TabStrip::ShowTipOf(int tab)
{
    QStatusTipEvent tip(tabToolTip(tab));
    QCoreApplication::sendEvent(this, &tip);
}

bool TabStrip::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == tabBar() && event->type() == QEvent::HoverMove)
        ShowTipOf(tabBar()->tabAt(static_cast<QHoverEvent*>(event)->position().toPoint()));
    return QTabWidget::eventFilter(watched, event);
}

void TabStrip::Select(Tab tab)
{
    const int index = static_cast<int>(tab);
    if (index == currentIndex())
        TabStrip1_Click();
    else
        setCurrentIndex(index);
}

void TabStrip::ShowTip()
{
    tabBar()->setStatusTip(tabToolTip(currentIndex()));
}

void TabStrip::TabStrip1_Click()
{
    ShowTip();
    if (tabBar()->underMouse())
        ShowTipOf(currentIndex());
    const auto chosen = static_cast<std::size_t>(currentIndex());
    Frame1_.at(chosen)->setEnabled(true);
    // The fourth page is never disabled, only covered: a bank size that is typed there can be checked from
    // anywhere.
    for (std::size_t i = 0; i < 3; ++i)
        if (i != chosen)
            Frame1_.at(i)->setEnabled(false);
    emit Switched(Current());
}

}  // namespace rqm5
