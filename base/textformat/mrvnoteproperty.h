#pragma once

/**
 * A property that paragraphs of notes have. Saved documents carry it.
 *
 * @since 1.0
 */
enum MRVNoteProperty {
    /**
     * Of block formats: int from 1, the note that a page says the paragraph is a part of.
     * Paragraphs in a row with the same number are one note; unset elsewhere.
     */
    MRVParagraphNoteProperty = 0x100220,
};
