#pragma once

#include "core/mrvcore_export.h"

#include <QString>

#include <cstddef>

class QIODevice;

/**
 * What a failure is, for a program that acts on it: asks for another place, a password of the
 * administrator, or nothing at all. The users read the text.
 *
 * @since 1.0
 */
enum class MRVErrorKind : int {
    None = 0, ///< no failure
    Other = 1, ///< only the text says what
    NoSpace = 2, ///< the disk, the user's share of it, or the longest file that it takes is full
    NoPermission = 3, ///< the system does not let this user do it, or nobody
    NotFound = 4, ///< a file, folder or name that is needed does not exist
    InUse = 5, ///< another program holds what is needed; later it may succeed
    Damaged = 6, ///< contents are not what they should be, or break off
    Cancelled = 7, ///< somebody who may has ended it
    TooLarge = 8, ///< more than a limit of this library allows
    Unsupported = 9, ///< a format, version or encoding that is not known here
    ProgramMissing = 10, ///< another program does this work, and is not installed
    Network = 11, ///< a server cannot be reached, does not answer in time, or refuses
    Changed = 12, ///< a file is not what it was when it was read; what others wrote would be lost
};

/**
 * Why something failed.
 *
 * @since 1.0
 */
struct MRVCORE_EXPORT MRVError
{
    MRVErrorKind kind = MRVErrorKind::None;
    QString text; ///< translated; each function says what form it has

    /** The system's error @p number, as errno has it, with the system's own text. */
    static MRVError ofSystem(int number);
    /** Why the last operation on @p device, a file, failed, with its errorString(). */
    static MRVError ofDevice(const QIODevice &device);

    /** Whether something failed. */
    explicit operator bool() const { return kind != MRVErrorKind::None; }
};

/**
 * Where a function puts its MRVError: into one, into a QString, which gets the text alone, or
 * nowhere. Callers do not name this type; they give the address of either, or null:
 *
 * @code
 * MRVError error;
 * const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(QStringLiteral("novel.html"), &error);
 * if (error.kind == MRVErrorKind::NotFound) {
 *     qDebug() << "a new novel";
 * } else if (error) {
 *     qWarning() << error.text;
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVErrorSink
{
public:
    /** Nobody wants to know. */
    MRVErrorSink(std::nullptr_t = nullptr) { }
    /** @param text not owned, and alive as long as this object; null for none. */
    MRVErrorSink(QString *text)
        : m_text(text)
    {
    }
    /** @param error not owned, and alive as long as this object; null for none. */
    MRVErrorSink(MRVError *error)
        : m_text(error ? &error->text : nullptr)
        , m_kind(error ? &error->kind : nullptr)
    {
    }

    /** Puts @p error there. */
    void set(const MRVError &error) const
    {
        if (m_text) {
            *m_text = error.text;
        }
        if (m_kind) {
            *m_kind = error.kind;
        }
    }

private:
    QString *m_text = nullptr;
    MRVErrorKind *m_kind = nullptr;
};
