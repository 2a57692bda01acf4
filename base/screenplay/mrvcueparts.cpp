#include "screenplay/mrvcueparts_p.h"

#include <QRegularExpression>

namespace {

MrvCuePart partOf(const QString &cue, int start, int end)
{
    static const QRegularExpression owner(QStringLiteral("(?:['\u2019]s|(?<=s)['\u2019])\\s+\\S"),
                                          QRegularExpression::CaseInsensitiveOption);
    while (start < end && cue.at(start).isSpace()) {
        ++start;
    }
    while (end > start && cue.at(end - 1).isSpace()) {
        --end;
    }
    const int ownerLength = cue.midRef(start, end - start).toString().indexOf(owner);
    return {start, end, ownerLength > 0 ? start + ownerLength : end};
}

} // namespace

QVector<MrvCuePart> mrvCueParts(const QString &cue, int length)
{
    static const QRegularExpression joint(QStringLiteral("[/&+,]|\\s(?:and|und|et|y)\\s"),
                                          QRegularExpression::CaseInsensitiveOption);
    QVector<MrvCuePart> parts;
    int start = 0;
    for (auto it = joint.globalMatch(cue.left(length)); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        parts.append(partOf(cue, start, match.capturedStart()));
        start = match.capturedEnd();
    }
    parts.append(partOf(cue, start, length));
    return parts;
}
