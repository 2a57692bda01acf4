#pragma once

#include "screenplay/mrvscriptpage.h"
#include "screenplay/mrvscriptpaper_p.h"

class MrvScriptTypesetter;

/** What stands in the margins of pages: numbers, and that a scene goes on. */
class MrvScriptMargins
{
public:
    /** All have to outlive it; @p pages are changed. */
    MrvScriptMargins(const MRVFountainScript &script, const MrvScriptPaper &paper,
                     MrvScriptTypesetter *setter, QVector<MRVScriptPage> *pages);

    /** Those of the script or, where no heading has one, counted from 1. */
    void addSceneNumbers();
    /** At the foot of a page on which a scene does not end, and at the head of the next one. */
    void addSceneContinuations(const QString &continues, const QString &continued);
    /** Last, since each is the first line of its page; not on the first page. */
    void addPageNumbers();

private:
    void addLine(MRVScriptPage *page, MRVScriptLine::Kind kind, const QString &text, qreal left,
                 qreal width, qreal top, Qt::Alignment alignment, int element = -1);

    const MRVFountainScript &m_script;
    const MrvScriptPaper &m_paper;
    MrvScriptTypesetter &m_setter;
    QVector<MRVScriptPage> &m_pages;
};
