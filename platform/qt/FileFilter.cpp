#include "platform/qt/FileFilter.h"

#include <QStringList>

#include "platform/qt/Conversions.h"

namespace tessarin {
namespace {

QString WithoutPattern(const QString& name) {
    const qsizetype open = name.lastIndexOf(QLatin1Char('('));
    return (open < 0 ? name : name.left(open)).trimmed();
}

QString QtPattern(const QString& pattern) {
    QStringList parts = pattern.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (QString& part : parts) {
        part = part.trimmed() == QLatin1String("*.*") ? QStringLiteral("*") : part.trimmed();
    }
    return parts.join(QLatin1Char(' '));
}

}  // namespace

QString QtFilter(std::string_view filter) {
    const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        filters += WithoutPattern(parts[i]) + QLatin1String(" (") + QtPattern(parts[i + 1]) +
                   QLatin1Char(')');
    }
    return filters.join(QLatin1String(";;"));
}

}  // namespace tessarin
