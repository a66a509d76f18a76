#include "fonts/fixed_pitch_font.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>

namespace rqm5 {
namespace {

/// The database calls a font fixed-pitch only when all of its glyphs are equally wide, and Japanese ones
/// are twice as wide as Latin ones.
bool HasOnePitch(const QString& family)
{
    const QFontMetricsF metrics{QFont(family)};
    return metrics.horizontalAdvance(u'i') == metrics.horizontalAdvance(u'W') &&
           metrics.horizontalAdvance(u'.') == metrics.horizontalAdvance(u'0');
}

QString FixedPitchFamily()
{
    const QString named = QStringLiteral("ＭＳ ゴシック");
    if (QFontDatabase::hasFamily(named))
        return named;
    const QStringList latin = QFontDatabase::families(QFontDatabase::Latin);
    for (const QString& family : QFontDatabase::families(QFontDatabase::Japanese))
        if (latin.contains(family) && HasOnePitch(family))
            return family;
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

}  // namespace

QFont FixedPitchFont(const QFont& base)
{
    // The search goes through every installed font; what it finds does not change while we run.
    static const QString family = FixedPitchFamily();
    QFont font = base;
    font.setFamilies({family});
    font.setStyleHint(QFont::Monospace);
    return font;
}

}  // namespace rqm5
