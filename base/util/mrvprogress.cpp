#include "util/mrvprogress.h"

MRVProgressMeter::MRVProgressMeter(const MRVProgress &progress)
    : m_progress(progress)
{
}

void MRVProgressMeter::begin(int until, qint64 steps)
{
    m_from = m_until;
    m_until = until;
    m_steps = qMax(qint64(1), steps);
    m_done = 0;
}

bool MRVProgressMeter::advance(qint64 steps)
{
    constexpr int Interval = 20; // milliseconds
    m_done = qMin(m_steps, m_done + steps);
    if (m_progress && !m_isCancelled && (!m_timer.isValid() || m_timer.elapsed() >= Interval)) {
        m_isCancelled = !m_progress(m_from + int((m_until - m_from) * m_done / m_steps));
        m_timer.start(); // what it took does not count
    }
    return !m_isCancelled;
}

MRVError MRVProgressMeter::cancelled()
{
    return {MRVErrorKind::Cancelled, tr("cancelled")};
}
