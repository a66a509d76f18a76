#include "app/read_option_items.h"

#include <QSettings>

namespace rqm5 {
namespace {

const QString kVerify = QStringLiteral("Read/Verify");

QSettings Store()
{
    return QSettings(QStringLiteral("Tervan"), QStringLiteral("Tervan RQ-M5 Clone Utility"));
}

}  // namespace

bool LoadReadTwice()
{
    return Store().value(kVerify, false).toBool();
}

void SaveReadTwice(bool readsTwice)
{
    Store().setValue(kVerify, readsTwice);
}

ReadOptionItems::ReadOptionItems(Menus& menus, QObject* parent) : QObject(parent), menus_(menus)
{
    menus_.Item("mnuReVerify").setChecked(LoadReadTwice());
}

void ReadOptionItems::mnuReVerify_Click()
{
    SaveReadTwice(menus_.Item("mnuReVerify").isChecked());
}

}  // namespace rqm5
