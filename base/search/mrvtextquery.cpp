#include "search/mrvtextquery.h"

QString MRVSearchOutcome::text() const
{
    const QString number = QString::number(paragraph + 1);
    switch (reason) {
    case TooCostly:
        return tr("the search was given up in paragraph %1, where the expression can match in too "
                  "many ways")
            .arg(number);
    case TimedOut:
        return tr("the search was given up in paragraph %1, since it took too long").arg(number);
    case Cancelled:
        return tr("the search was cancelled in paragraph %1").arg(number);
    case Complete:
        break;
    }
    return QString();
}
