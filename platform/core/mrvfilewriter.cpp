#include "core/mrvfilewriter.h"

#include "core/mrvpendingfile_p.h"

bool MRVFileWriter::write(const QString &path, const QByteArray &bytes, MRVErrorSink error)
{
    return write(path, MRVPendingFile::contentOf(bytes), error);
}

bool MRVFileWriter::write(const QString &path, const Content &content, MRVErrorSink error)
{
    MRVPendingFile file(path);
    return file.fill(content, error) && file.sync(error) && file.putInPlace(error);
}
