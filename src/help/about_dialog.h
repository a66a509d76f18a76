#pragma once

#include <QDialog>

#include "help/about_facts.h"

namespace rqm5 {

/// The About box: the facts, and a button that copies all of them for a bug report.
class dlgAbout : public QDialog
{
    Q_OBJECT

  public:
    dlgAbout(const QList<AboutFact>& facts, QWidget* parent);

  private:
    void AddFacts();
    void AddButtons();
    void cmbCopy_Click();

    QList<AboutFact> facts_;
};

}  // namespace rqm5
