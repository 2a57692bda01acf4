#include "search/mrvsearchguard_p.h"

#include <utility>

MRVSearchGuard::MRVSearchGuard(int timeLimit, std::function<bool()> isCancelled)
    : m_isCancelled(std::move(isCancelled))
    , m_limit(timeLimit)
{
    if (m_limit > 0 || m_isCancelled) {
        m_clock.start();
    }
}

bool MRVSearchGuard::goesOn()
{
    constexpr qint64 AskEvery = 10; // milliseconds
    if (!m_clock.isValid() || !isComplete()) {
        return isComplete();
    }
    const qint64 now = m_clock.elapsed();
    if (m_limit > 0 && now >= m_limit) {
        m_reason = MRVSearchOutcome::TimedOut;
    } else if (m_isCancelled && now - m_lastAsked >= AskEvery) {
        m_lastAsked = now;
        if (m_isCancelled()) {
            m_reason = MRVSearchOutcome::Cancelled;
        }
    }
    return isComplete();
}
