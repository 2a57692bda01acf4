#pragma once

#include "text/mrvlistmarkercache.h"
#include "util/mrvbase_export.h"

#include <QObject>
#include <QScopedPointer>

class QRect;
class QTextEdit;

/**
 * Shows the markers of multi-level lists in an editor.
 *
 * Qt numbers all items of a list in one go and draws one style for all levels. This draws what
 * MRVListMarkerCache says in its place, whenever the editor has painted: on the side where the
 * paragraph begins, in the font of its first character and, but for bullets that are shapes, in its
 * colour, and selected where the paragraph before it is selected to its end. Markers that Qt draws
 * correctly stay Qt's, and so do the boxes of task lists. How far in a paragraph stands is part of
 * its format, see mrvSetListLevel().
 *
 * The document is not changed in any way. What is behind a marker is taken from the viewport's
 * palette and the backgrounds of frames and cells; of a background with a pattern or a picture,
 * the piece behind a marker may be shifted.
 *
 * @code
 * QTextEdit editor;
 * new MRVListMarkerPainter(&editor); // goes with the editor
 * @endcode
 *
 * GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVListMarkerPainter : public QObject
{
    Q_OBJECT

public:
    /**
     * @param editor of which the viewport that it has now is painted on, and whose document may be
     *               replaced at any time. It owns this; not null. Deleting this ends the painting.
     */
    explicit MRVListMarkerPainter(QTextEdit *editor);

protected:
    /** Paints after the editor; called by Qt. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void paint(const QRect &exposed);
    void follow();

    QTextEdit *m_editor;
    QScopedPointer<MRVListMarkerCache> m_markers; // of the document that was painted last
    bool m_isInEditor = false;
};
