#include "app/read_option_items.h"

#include "ui/settings_store.h"

namespace rqm5 {
namespace {

const QString kVerify = QStringLiteral("Read/Verify");

}  // namespace

bool LoadReadTwice()
{
    return SettingsStore().value(kVerify, false).toBool();
}

void SaveReadTwice(bool readsTwice)
{
    SettingsStore().setValue(kVerify, readsTwice);
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
