#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <vector>

#include "document/document.h"

namespace rqm5 {

/// The find box `txtFind`; what it finds is listed below it, over the page, while it is being typed into.
class FindBar : public QWidget
{
    Q_OBJECT

  public:
    /// \param page  what the list of hits lies over
    FindBar(const Document& document, QWidget* page);

    /// Gives the box the focus, with its text selected.
    void Begin();

    /// Goes to the next hit (1) or the previous one (-1), round and round.
    void Step(int by);

    /// False when there is nothing to step through.
    bool HasHits();

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    /// A hit was gone to.
    void Found(int memoryRow);

    /// It was gone to with Enter or a click: the search is over.
    void Done();

    /// Esc was pressed: the focus goes back to where it was.
    void Left();

  private:
    void txtFind_Change();
    bool txtFind_KeyDown(QKeyEvent& event);
    void Search();
    void Choose(int hit);
    void Finish(int hit);
    void ShowCount();
    void OpenList();
    void PlaceList();
    QListWidgetItem* AddLine(const QString& text);
    QString LineOf(int row) const;

    const Document& document_;
    QWidget* page_;
    QLineEdit* txtFind_;
    QLabel* lblFound_;
    QListWidget* lstFound_;
    std::vector<int> hits_;
    int current_ = -1;     ///< the hit that was gone to last
    bool isStale_ = true;  ///< the image has changed since the search
};

}  // namespace rqm5
