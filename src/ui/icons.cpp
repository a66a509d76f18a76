#include "ui/icons.h"

#include <QString>
#include <QtGlobal>

// Outside any namespace, as the macro wants it: a static library's resources are linked only when named.
static void LoadIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace rqm5 {

namespace {

struct IconRow
{
    const char* item;
    const char* themeName;
    const char* file;
};

constexpr IconRow kIcons[] = {
    {"mnuFileNew", "document-new", "new"},
    {"mnuFileOpen", "document-open", "open"},
    {"mnuFileSave", "document-save", "save"},
    {"mnuFilePrint", "document-print", "print"},
    {"mnuHelpAbout", "help-about", "about"},
    {"mnuHistoryUndo", "edit-undo", "undo"},
    {"mnuHistoryRedo", "edit-redo", "redo"},
    {"mnuEditFind", "edit-find", "find"},
    // No theme has these two.
    {"mnuReAll", "", "read"},
    {"mnuWrAll", "", "write"},
};

QString IconPath(const char* file)
{
    return QStringLiteral(":/icons/%1.svg").arg(QLatin1String(file));
}

}  // namespace

QIcon IconOf(const char* itemName)
{
    LoadIcons();
    for (const IconRow& row : kIcons)
        if (qstrcmp(row.item, itemName) == 0)
            return QIcon::fromTheme(QLatin1String(row.themeName), QIcon(IconPath(row.file)));
    return {};
}

QIcon ProgramIcon()
{
    LoadIcons();
    return QIcon(IconPath("rq-m5-clone"));
}

}  // namespace rqm5
