#pragma once

#include "search/mrvtextquery.h"

#include <QElapsedTimer>

#include <functional>

/** Tells a search when it has to end before it has looked at everything. */
class MRVSearchGuard
{
public:
    MRVSearchGuard() = default;
    MRVSearchGuard(int timeLimit, std::function<bool()> isCancelled);

    /** Looks at the clock, and now and then asks for the user's wish. */
    bool goesOn();
    void giveUp() { m_reason = MRVSearchOutcome::TooCostly; }

    bool isComplete() const { return m_reason == MRVSearchOutcome::Complete; }
    MRVSearchOutcome::Reason reason() const { return m_reason; }

private:
    std::function<bool()> m_isCancelled;
    QElapsedTimer m_clock; // runs only where it is needed
    qint64 m_limit = 0;
    qint64 m_lastAsked = 0;
    MRVSearchOutcome::Reason m_reason = MRVSearchOutcome::Complete;
};
