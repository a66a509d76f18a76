#pragma once

#include <QObject>

#include "app/menus.h"
#include "app/transfer_commands.h"
#include "app/write_option_items.h"
#include "document/document.h"
#include "ui/message_bar.h"

namespace rqm5 {

/// What the message bar offers to somebody new: how to begin, and a backup and verification of writes.
class Offers : public QObject
{
    Q_OBJECT

  public:
    Offers(const Document& document, TransferCommands& transfers, WriteOptionItems& options,
           const Menus& menus, MessageBar& bar);

    /// At the start with an empty image and no file. It goes when something comes into the image.
    void ShowFirstLook();

  private:
    void OfferWriteOptions();

    const Document& document_;
    WriteOptionItems& options_;
    const Menus& menus_;
    MessageBar& bar_;
};

}  // namespace rqm5
