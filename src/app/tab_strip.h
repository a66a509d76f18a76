#pragma once

#include <QKeySequence>
#include <QScrollArea>
#include <QTabWidget>
#include <array>

namespace rqm5 {

enum class Tab { Settings1, Settings2, Memory, Bank };

inline constexpr int kTabs = 4;

/// `TabStrip1` and its pages `Frame1_0` to `Frame1_3`.
class TabStrip : public QTabWidget
{
    Q_OBJECT

  public:
    explicit TabStrip(QWidget* parent);

    void SetPage(Tab tab, QWidget& page);

    Tab Current() const { return static_cast<Tab>(currentIndex()); }

    /// Brings a tab's page to the front as a click on its tab does.
    void Select(Tab tab);

    /// The tabs tell of the page in front, in the language of now.
    void ShowTip();

  signals:
    /// A tab was chosen and its page is not in front yet.
    void AboutToSwitch();
    void Switched(rqm5::Tab tab);

  private:
    void TabStrip1_Click();
    void ShowTipOf(int tab);
    bool eventFilter(QObject* watched, QEvent* event) override;
    void AddStepKeys(const QList<QKeySequence>& keys, int step);

    std::array<QScrollArea*, kTabs> Frame1_{};
};

}  // namespace rqm5
