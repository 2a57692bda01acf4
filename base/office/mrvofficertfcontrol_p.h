#pragma once

#include <QByteArray>

#include <cctype>

/** A backslash with what belongs to it: "\u220", "\'fc", "\{", and the bytes of "\bin". */
struct MRVRtfControl
{
    MRVRtfControl(const QByteArray &rtf, int begin)
    {
        int at = begin + 1;
        while (at < rtf.size() && isalpha(uchar(rtf.at(at)))) {
            ++at;
        }
        word = rtf.mid(begin + 1, at - begin - 1);
        end = at;
        if (word.isEmpty()) {
            end = qMin(begin + (rtf.mid(at, 1) == "'" ? 4 : 2), rtf.size());
            return;
        }
        at += rtf.mid(at, 1) == "-" ? 1 : 0;
        const int digits = at;
        while (at < rtf.size() && isdigit(uchar(rtf.at(at)))) {
            ++at;
        }
        hasNumber = at > digits;
        if (hasNumber) {
            number = rtf.mid(end, at - end).toInt();
            end = at;
        }
        if (word == "bin" && number > 0) {
            end += int(qMin(qint64(number) + 1, qint64(rtf.size() - end)));
        }
    }

    bool isCharacter() const { return word == "u" && hasNumber; }

    QByteArray word; // empty for a symbol
    int number = 0;
    bool hasNumber = false;
    int end = 0;
};
