#pragma once

class QTextCharFormat;

/**
 * Gives QTextOption::Tab, the type of tab stops, its stream operators and its equality. Without
 * them a format with tab stops can be neither stored nor compared. Call it before either; only the
 * first call does anything.
 */
void mrvRegisterTextTypes();

/** Whether text of this format is marked PreserveFormatProperty. */
bool mrvIsPreserved(const QTextCharFormat &format);
