#pragma once

#include "screenplay/mrvscriptpaper_p.h"

class MrvScriptTypesetter;

/** What stands in the margins of pages: numbers, and that a scene goes on. */
class MrvScriptMargins
{
public:
    /** All have to outlive it; @p pages are changed. */
    MrvScriptMargins(const MRVFountainScript &script, const MRVScriptPagination::Options &options,
                     const MrvScriptPaper &paper, MrvScriptTypesetter *setter,
                     QVector<MRVScriptPage> *pages);

    void add();

private:
    void addLine(MRVScriptPage *page, MRVScriptLine::Kind kind, const QString &text, qreal left,
                 qreal width, qreal top, Qt::Alignment alignment, int element = -1);
    void addSceneContinuations();
    void addSceneNumbers();

    const MRVFountainScript &m_script;
    const MRVScriptPagination::Options &m_options;
    const MrvScriptPaper &m_paper;
    MrvScriptTypesetter &m_setter;
    QVector<MRVScriptPage> &m_pages;
};
