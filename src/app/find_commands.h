#pragma once

#include <QObject>
#include <QPointer>

#include "app/menus.h"
#include "app/pages.h"

namespace rqm5 {

class dlgDuplicates;

/// Edit > Find and its steps, and Tools > Duplicates.
class FindCommands : public QObject
{
    Q_OBJECT

  public:
    FindCommands(const Document& document, Pages& pages, QWidget& window);

    void mnuEditFind_Click();
    void mnuEditFindNext_Click();
    void mnuEditFindPrevious_Click();
    void mnuToolsDuplicates_Click();

  private:
    void Step(int by);
    void GoToRow(int memoryRow);
    void Return();

    const Document& document_;
    Pages& pages_;
    QWidget& window_;
    dlgDuplicates* duplicates_ = nullptr;
    Tab tab_ = Tab::Memory;  ///< where the search was begun
    QPointer<QWidget> focus_;
};

}  // namespace rqm5
