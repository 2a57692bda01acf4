#pragma once

class QTextCharFormat;

/**
 * Gives the types of tab stops and list levels their stream operators and their equality. Without
 * them a format with tab stops can be neither stored nor compared, and one with list levels not
 * read. Call it before either; only the first call does anything.
 */
void mrvRegisterTextTypes();

/** Whether text of this format is marked PreserveFormatProperty. */
bool mrvIsPreserved(const QTextCharFormat &format);
