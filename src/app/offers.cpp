#include "app/offers.h"

#include "app/write_options.h"

namespace rqm5 {
namespace {

const QString kFirstLook = QStringLiteral("first-look");
const QString kWriteOptions = QStringLiteral("write-options");

}  // namespace

Offers::Offers(const Document& document, TransferCommands& transfers, WriteOptionItems& options,
               const Menus& menus, MessageBar& bar)
    : QObject(&bar), document_(document), options_(options), menus_(menus), bar_(bar)
{
    const auto goes = [this] { bar_.Withdraw(kFirstLook); };
    connect(&document, &Document::Changed, this, goes);
    connect(&document, &Document::Replaced, this, goes);
    connect(&document, &Document::StateChanged, this, goes);
    connect(&transfers, &TransferCommands::WriteBegan, this, &Offers::OfferWriteOptions);
}

void Offers::ShowFirstLook()
{
    if (!document_.FileName().isEmpty() || document_.DataChanged())
        return;
    bar_.Show({kFirstLook,
               MESSAGE("Connect the receiver and choose Read > ALL (Ctrl+R), or open a file."),
               {{MESSAGE("Read ALL"), [this] { menus_.Item("mnuReAll").trigger(); }},
                {MESSAGE("Open..."), [this] { menus_.Item("mnuFileOpen").trigger(); }}}});
}

void Offers::OfferWriteOptions()
{
    if (!TakeWriteOffer())
        return;
    bar_.Show({kWriteOptions, MESSAGE("Backup and verify are off."), {{MESSAGE("Turn Them On"), [this] {
                                                                           options_.TurnOn();
                                                                           bar_.Withdraw(kWriteOptions);
                                                                       }}}});
}

}  // namespace rqm5
