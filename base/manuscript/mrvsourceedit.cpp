#include "manuscript/mrvsourceedit.h"

#include "manuscript/mrvmanuscript.h"
#include "manuscript/mrvsourcechanges_p.h"
#include "util/mrvfailure.h"

#include <QTextCodec>

#include <algorithm>

namespace {

// Names the first of the changes that do not fit.
QString reasonOf(const QVector<MRVSourceMisfit> &misfits)
{
    constexpr int Most = 5;
    QStringList texts;
    for (const MRVSourceMisfit &misfit : misfits.mid(0, Most)) {
        texts.append(misfit.text());
    }
    if (misfits.size() > Most) {
        texts.append(MRVSourceEdit::tr("others: %1").arg(misfits.size() - Most));
    }
    return texts.join(QLatin1String("; "));
}

/** The bytes of a source; null where its encoding cannot restore those of the manuscript. */
QByteArray encoded(const QString &source, const MRVManuscript &manuscript)
{
    const QTextCodec *codec = QTextCodec::codecForName(manuscript.encoding);
    const QString old = manuscript.sourceText();
    // A byte-order mark is written if there was one, which writing the old text first tells.
    for (const auto flag : {QTextCodec::IgnoreHeader, QTextCodec::DefaultConversion}) {
        QTextCodec::ConverterState before(flag);
        if (codec->fromUnicode(old.constData(), old.size(), &before) == manuscript.bytes) {
            QTextCodec::ConverterState state(flag);
            const QByteArray bytes = codec->fromUnicode(source.constData(), source.size(), &state);
            return bytes.isNull() ? QByteArray("") : bytes;
        }
    }
    return QByteArray();
}

} // namespace

bool MRVSourceEdit::changedBytes(const MRVManuscript &manuscript,
                                 const QVector<MRVTextChange> &wanted, Mode mode, QByteArray *bytes,
                                 MRVErrorSink error, QVector<MRVSourceMisfit> *misfits,
                                 QStringList *brokenLinks)
{
    if (manuscript.isConverted()) {
        return MRV::fail(error, MRVErrorKind::Unsupported,
                         tr("a file of a word processor is read, but not changed"));
    }
    MRVSourceChanges changes(manuscript, wanted);
    if (!changes.isValid()) {
        return MRV::fail(error, tr("the changes overlap or belong to another text"));
    }
    QString text;
    bool isReadBack = false;
    if (mode == WriteWhole) {
        const auto setsFormat = [](const MRVTextChange &change) {
            return !change.format.isEmpty();
        };
        if (manuscript.format != MRVManuscript::Html
            && std::any_of(wanted.cbegin(), wanted.cend(), setsFormat)) {
            return MRV::fail(error, MRVErrorKind::Unsupported,
                             tr("only HTML can be written as a whole with new formats"));
        }
        if (!changes.writeWhole(&text)) {
            return MRV::fail(error, MRVErrorKind::Unsupported,
                             tr("the encoding %1 does not have all characters of the new text")
                                 .arg(QString::fromLatin1(manuscript.encoding)));
        }
        isReadBack = changes.isReadBack(text);
    } else {
        isReadBack = changes.settle();
        text = changes.edited();
    }
    if (!isReadBack) {
        return MRV::fail(error, tr("the new text would not be read back as it is"));
    }
    const QVector<MRVSourceMisfit> found = changes.misfits();
    if (!misfits && !found.isEmpty()) {
        return MRV::fail(error, reasonOf(found));
    }
    const QByteArray result = encoded(text, manuscript);
    if (result.isNull()) {
        return MRV::fail(error, MRVErrorKind::Unsupported,
                         tr("the encoding %1 cannot be written back as it was")
                             .arg(QString::fromLatin1(manuscript.encoding)));
    }
    if (misfits) {
        *misfits = found;
    }
    if (brokenLinks) {
        *brokenLinks = changes.brokenLinks(text);
    }
    *bytes = result;
    return true;
}
