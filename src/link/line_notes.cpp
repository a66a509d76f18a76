#include "link/line_notes.h"

#include <QCoreApplication>

namespace rqm5 {
namespace {

QString Translate(const char* text)
{
    return QCoreApplication::translate("LineNote", text);
}

std::string Counted(int blocks, const char* one, const char* many)
{
    if (blocks == 0)
        return {};
    return (blocks == 1 ? Translate(one) : Translate(many).arg(blocks)).toStdString();
}

}  // namespace

std::string RepeatNote(int blocks)
{
    return Counted(blocks, QT_TRANSLATE_NOOP("LineNote", "1 block needed more than one attempt"),
                   QT_TRANSLATE_NOOP("LineNote", "%1 blocks needed more than one attempt"));
}

std::string UnreadableNote(int blocks)
{
    return Counted(
        blocks, QT_TRANSLATE_NOOP("LineNote", "1 block was read with characters that are no hex digits"),
        QT_TRANSLATE_NOOP("LineNote", "%1 blocks were read with characters that are no hex digits"));
}

std::string OtherwiseNote(int blocks)
{
    return Counted(blocks, QT_TRANSLATE_NOOP("LineNote", "1 block was different when it was read again"),
                   QT_TRANSLATE_NOOP("LineNote", "%1 blocks were different when they were read again"));
}

Problem UnreadableBlocks(const std::vector<std::string>& names)
{
    const QString what = QString::fromStdString(UnreadableNote(static_cast<int>(names.size())));
    return {kCommunicationError,
            Translate("%1, the first of them: %2. Check the cable, then repeat the operation.")
                .arg(what, QString::fromStdString(names.front()))
                .toStdString()};
}

Problem ShiftedReplies()
{
    return {
        kCommunicationError,
        Translate("Replies came late again and again, so that it cannot be told to which block each belongs. "
                  "Check the cable and the receiver's battery, then read again.")
            .toStdString()};
}

Problem DoubtfulWrite()
{
    return {
        kCommunicationError,
        Translate("All was sent, but replies came late, so that an OK may have been another block's. Verify "
                  "what the receiver holds, or repeat the write.")
            .toStdString()};
}

std::string NotReadTwice()
{
    return Translate("All was read, but not all of it could be read again to compare.").toStdString();
}

}  // namespace rqm5
