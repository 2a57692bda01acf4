#include "manuscript/mrvsourcelines.h"

#include "manuscript/mrvmanuscript.h"
#include "manuscript/mrvsourceplaces_p.h"

#include <algorithm>

MRVSourceLines::MRVSourceLines(const MRVManuscript &manuscript)
{
    if (manuscript.isConverted()) {
        return;
    }
    const QString source = manuscript.sourceText();
    const MRVSourcePlaces places = mrvSourcePlaces(manuscript, source);
    m_places.resize(places.size());
    int next = -1;
    for (int i = places.size() - 1; i >= 0; --i) {
        next = places.at(i).isKnown() ? places.at(i).start : next;
        m_places[i] = next;
    }
    for (int i = 0; i < source.size(); ++i) {
        const bool isOldEnd = source.at(i) == QLatin1Char('\r')
            && (i + 1 == source.size() || source.at(i + 1) != QLatin1Char('\n'));
        if (source.at(i) == QLatin1Char('\n') || isOldEnd) {
            m_lineEnds.append(i);
        }
    }
}

int MRVSourceLines::lineAt(int position) const
{
    if (position < 0 || position >= m_places.size() || m_places.at(position) < 0) {
        return 0;
    }
    const auto end =
        std::lower_bound(m_lineEnds.cbegin(), m_lineEnds.cend(), m_places.at(position));
    return int(end - m_lineEnds.cbegin()) + 1;
}
