#include "language/translated.h"

#include <QCoreApplication>

namespace rqm5 {
namespace {

std::string Translation(const char* id)
{
    return QCoreApplication::translate("Message", id).toStdString();
}

}  // namespace

QString Translated(const Message& message)
{
    return QString::fromStdString(Said(message));
}

std::string Said(const Message& message)
{
    return message.Say(Translation);
}

}  // namespace rqm5
