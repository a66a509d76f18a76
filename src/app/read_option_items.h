#pragma once

#include <QObject>

#include "app/menus.h"

namespace rqm5 {

/// True when a person wants everything read twice and compared; remembered from run to run.
bool LoadReadTwice();
void SaveReadTwice(bool readsTwice);

/// The item of the Read menu that says so.
class ReadOptionItems : public QObject
{
    Q_OBJECT

  public:
    ReadOptionItems(Menus& menus, QObject* parent);

    void mnuReVerify_Click();

  private:
    Menus& menus_;
};

}  // namespace rqm5
