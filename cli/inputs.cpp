#include "inputs.h"

InputOptions inputOptions(const Call &call)
{
    return {call.value("from"), call.value("encoding"), false};
}

int lookThrough(const Call &call, const QString &doing,
                const std::function<bool(const MRVManuscript &)> &look)
{
    return readsTwice(call.arguments)
        ? int(WrongUsage)
        : lookThrough(call.arguments, inputOptions(call), doing, look);
}

bool readsTwice(const QStringList &inputs)
{
    const bool twice = inputs.count(QStringLiteral("-")) > 1;
    if (twice) {
        printError(QStringLiteral("standard input can be read only once"));
    }
    return twice;
}
