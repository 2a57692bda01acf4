#include "html/mrvhtmlsheets_p.h"

#include "input/mrvtextdecoder.h"
#include "util/mrvlocalfile.h"

#include "core/mrvcoreutil.h"
#include "core/mrvinputlimits.h"

#include <QFileInfo>
#include <QSet>

namespace {

/** Collects sheets; each file counts once, where it is named first. */
class Collector
{
public:
    Collector(const QString &folder, MRVStyleSheet *sheets, MRVHtmlReport *report)
        : m_folder(folder)
        , m_sheets(sheets)
        , m_report(report)
    {
    }

    void visit(const GumboNode *parent)
    {
        for (const GumboNode *child : MRVHtmlChildren(parent)) {
            if (mrvIsElement(child, GUMBO_TAG_STYLE)) {
                if (MRVStyleSheet::fitsMedia(mrvAttributeOf(child, "media"))) {
                    add(mrvTextIn(child), m_folder, 0);
                }
            } else if (mrvIsElement(child, GUMBO_TAG_LINK)) {
                addLink(child);
            } else if (child->type == GUMBO_NODE_ELEMENT) {
                visit(child);
            }
        }
    }

    bool hasSheets() const { return m_hasSheets; }

private:
    void addLink(const GumboNode *link)
    {
        const QStringList relations =
            mrvAttributeOf(link, "rel").toLower().simplified().split(u' ');
        const QString address = mrvAttributeOf(link, "href").trimmed();
        if (relations.contains(QLatin1String("stylesheet"))
            && !relations.contains(QLatin1String("alternate")) && !address.isEmpty()
            && MRVStyleSheet::fitsMedia(mrvAttributeOf(link, "media"))) {
            addFile(address, m_folder, 0);
        }
    }

    // The sheets that a sheet imports come before its own rules.
    void add(const QString &css, const QString &folder, int depth)
    {
        const QStringList imports = MRVStyleSheet::imports(css);
        for (const QString &address : imports) {
            addFile(address, folder, depth + 1);
        }
        m_hasSheets = m_sheets->add(css) || m_hasSheets;
    }

    void addFile(const QString &address, const QString &folder, int depth)
    {
        if (MRV::isElsewhere(address)) {
            note(address, &m_report->remoteSheets);
            return;
        }
        if (folder.isEmpty()) {
            return;
        }
        const QString path = MRV::localFile(address, folder);
        if (depth > MRVInputLimits::StyleSheetDepth || m_paths.contains(path)
            || m_paths.size() >= MRVInputLimits::StyleSheets) {
            return;
        }
        m_paths.insert(path);
        QString css;
        if (read(path, &css)) {
            add(css, QFileInfo(path).absolutePath(), depth);
        } else {
            note(address, &m_report->missingSheets);
        }
    }

    static bool read(const QString &path, QString *css)
    {
        const QFileInfo file(path);
        if (!file.isFile() || file.size() > MRVInputLimits::StyleSheetBytes) {
            return false;
        }
        if (file.size() == 0) {
            return true; // files of the kernel, which may keep who reads them waiting, say so too
        }
        QString error;
        const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, &error);
        // Selectors and lengths are ASCII, so that another encoding only changes names of fonts.
        if (!MRVTextDecoder::decode(bytes, QByteArrayLiteral("UTF-8"), css)) {
            *css = QString::fromLatin1(bytes);
        }
        return error.isEmpty();
    }

    static void note(const QString &address, QStringList *addresses)
    {
        if (!addresses->contains(address)) {
            addresses->append(address);
        }
    }

    const QString m_folder;
    MRVStyleSheet *m_sheets;
    MRVHtmlReport *m_report;
    bool m_hasSheets = false;
    QSet<QString> m_paths;
};

} // namespace

bool mrvAddSheets(const MRVHtmlTree &tree, const QString &folder, MRVStyleSheet *sheets,
                  MRVHtmlReport *report)
{
    Collector collector(folder, sheets, report);
    collector.visit(tree.root());
    return collector.hasSheets();
}
