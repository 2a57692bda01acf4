#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <functional>

/**
 * Follows a long operation, and may end it: is told how much of it is done, in thousandths that
 * never fall, and returns false to cancel it.
 *
 * It is called in the thread of the operation, once at its start and then every 20 ms or so, and
 * never while it runs already. It may process events, such as those of a progress dialog; but what
 * the operation works with, the documents among it, must neither be changed nor deleted meanwhile,
 * nor used for another operation. A cancelled operation fails with MRVErrorKind::Cancelled, leaves
 * files as they were, and no temporary ones.
 *
 * @code
 * QProgressDialog dialog(QStringLiteral("Writing"), QStringLiteral("Cancel"), 0, 1000, window);
 * dialog.setWindowModality(Qt::WindowModal); // keeps the user from the document
 * MRVEPubPackage package;
 * package.setProgress([&dialog](int thousandths) {
 *     dialog.setValue(thousandths); // processes events
 *     return !dialog.wasCanceled();
 * });
 * MRVError error;
 * if ((!package.addDocument(document, QString(), &error)
 *      || !package.write(QStringLiteral("novel.epub"), &error))
 *     && error.kind != MRVErrorKind::Cancelled) {
 *     qWarning() << error.text;
 * }
 * @endcode
 *
 * @since 1.0
 */
using MRVProgress = std::function<bool(int thousandths)>;

/**
 * What a long operation counts its work with, for a MRVProgress.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVProgressMeter
{
    Q_DECLARE_TR_FUNCTIONS(MRVProgressMeter)

public:
    /** @param progress may be empty: nothing is cancelled then. */
    explicit MRVProgressMeter(const MRVProgress &progress);

    /**
     * Begins the next stage, which ends at @p until thousandths of the whole, in @p steps of one
     * length.
     */
    void begin(int until, qint64 steps);
    /** Counts @p steps of the stage; false when the operation has been cancelled. */
    bool advance(qint64 steps = 1);
    /** Whether advance() has returned false. */
    bool isCancelled() const { return m_isCancelled; }

    /** The error of an operation that was cancelled. */
    static MRVError cancelled();

private:
    const MRVProgress m_progress;
    QElapsedTimer m_timer;
    int m_from = 0;
    int m_until = 0;
    qint64 m_steps = 1;
    qint64 m_done = 0;
    bool m_isCancelled = false;
};
