#include "pdf/mrvpdfwriter.h"

#include "util/mrvfailure.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QHash>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSet>
#include <QStringList>
#include <QUrl>
#include <QVector>

// The interface for C: that for C++ brings streams with it, which are set up on loading.
#include <qpdf/qpdf-c.h>

#include <utility>

namespace {

struct Place
{
    int page; // from 0
    qreal y; // in dots, from the top
};

struct OutlineEntry
{
    QString title;
    int level;
    Place place;
};

struct Link
{
    int page;
    QRectF area; // in dots
    QString address;
};

bool isOutsideAddress(const QString &address)
{
    const QString scheme = QUrl(address).scheme();
    return scheme == QLatin1String("http") || scheme == QLatin1String("https")
        || scheme == QLatin1String("mailto");
}

// An object of a file. The interface keeps it until it is told that nobody needs it any more.
class Object
{
public:
    Object(qpdf_data file, qpdf_oh handle)
        : m_file(file)
        , m_handle(handle)
    {
    }
    Object(const Object &other)
        : Object(other.m_file, qpdf_oh_new_object(other.m_file, other.m_handle))
    {
    }
    Object(Object &&other) noexcept
        : Object(other.m_file, std::exchange(other.m_handle, 0))
    {
    }
    Object &operator=(Object other)
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    ~Object()
    {
        if (m_handle != 0) {
            qpdf_oh_release(m_file, m_handle);
        }
    }

    qpdf_oh handle() const { return m_handle; }

private:
    qpdf_data m_file;
    qpdf_oh m_handle; // 0 for none
};

// Adds to the file that Qt has written what Qt cannot write.
class Completion
{
public:
    Completion(qpdf_data file, qreal paperHeight)
        : m_file(file)
        , m_root(object(qpdf_get_root(file)))
        , m_height(paperHeight)
    {
    }

    void setProperties(const MRVPdfProperties &properties);
    void setPageNumbers(const QVector<QPair<int, int>> &numbers);
    void addOutline(const QVector<OutlineEntry> &entries);
    void addLinks(const QVector<Link> &links, const QHash<QString, Place> &targets);
    void nameFonts(int pageCount);

private:
    struct OpenEntry
    {
        int level;
        Object item;
        Object last; // of its children
        int count; // of its children
    };

    Object object(qpdf_oh handle) const { return Object(m_file, handle); }
    Object newText(const QString &text) const;
    Object newBytes(const QByteArray &bytes) const;
    Object newNumber(qreal number) const
    {
        return object(qpdf_oh_new_real_from_double(m_file, number, 2));
    }
    Object newArray() const { return object(qpdf_oh_new_array(m_file)); }
    Object newDictionary() const { return object(qpdf_oh_new_dictionary(m_file)); }
    Object newIndirect(const Object &value) const
    {
        return object(qpdf_make_indirect_object(m_file, value.handle()));
    }
    Object newName(const char *name) const { return object(qpdf_oh_new_name(m_file, name)); }
    Object newInteger(int number) const { return object(qpdf_oh_new_integer(m_file, number)); }
    Object newDestination(const Place &place) const;
    Object newAction(const QString &address) const;
    Object newArea(const QRectF &area) const;
    void set(const Object &dictionary, const char *key, const Object &value) const
    {
        qpdf_oh_replace_key(m_file, dictionary.handle(), key, value.handle());
    }
    Object get(const Object &dictionary, const char *key) const
    {
        return object(qpdf_oh_get_key(m_file, dictionary.handle(), key));
    }
    void append(const Object &array, const Object &item) const
    {
        qpdf_oh_append_item(m_file, array.handle(), item.handle());
    }
    Object pageAt(int page) const { return object(qpdf_get_page_n(m_file, size_t(page))); }
    qreal fromBottom(qreal y) const { return m_height - y / MRVPdfWriter::DotsPerPoint; }
    void close(const OpenEntry &entry, bool isOutermost) const;

    qpdf_data m_file;
    Object m_root;
    qreal m_height; // in points
};

Object Completion::newText(const QString &text) const
{
    const QByteArray utf8 = text.toUtf8();
    return object(qpdf_oh_new_binary_unicode_string(m_file, utf8.constData(), size_t(utf8.size())));
}

Object Completion::newBytes(const QByteArray &bytes) const
{
    return object(qpdf_oh_new_binary_string(m_file, bytes.constData(), size_t(bytes.size())));
}

void Completion::setProperties(const MRVPdfProperties &properties)
{
    const Object info = newDictionary();
    if (!properties.title.isEmpty()) {
        set(info, "/Title", newText(properties.title));
    }
    if (!properties.author.isEmpty()) {
        set(info, "/Author", newText(properties.author));
    }
    set(info, "/Creator", newText(QCoreApplication::applicationName()));
    if (properties.date.isValid()) {
        const QString date = properties.date.toUTC().toString(QStringLiteral("yyyyMMddHHmmss"));
        const Object written = newBytes("D:" + date.toLatin1() + 'Z');
        set(info, "/CreationDate", written);
        set(info, "/ModDate", written);
    }
    set(object(qpdf_get_trailer(m_file)), "/Info", newIndirect(info));
    // It holds the time and a random identifier.
    qpdf_oh_remove_key(m_file, m_root.handle(), "/Metadata");
    if (!properties.language.isEmpty()) {
        set(m_root, "/Lang", newText(properties.language));
    }
    if (!properties.title.isEmpty()) {
        const Object preferences = newDictionary();
        set(preferences, "/DisplayDocTitle", object(qpdf_oh_new_bool(m_file, QPDF_TRUE)));
        set(m_root, "/ViewerPreferences", preferences);
    }
}

void Completion::setPageNumbers(const QVector<QPair<int, int>> &numbers)
{
    if (numbers.isEmpty()) {
        return;
    }
    const Object list = newArray();
    const auto add = [&](int page, int number) {
        const Object label = newDictionary();
        if (number > 0) {
            set(label, "/S", newName("/D"));
            set(label, "/St", newInteger(number));
        }
        append(list, newInteger(page));
        append(list, label);
    };
    if (numbers.constFirst().first > 0) {
        add(0, 1); // ISO 32000-1, 12.4.2: the first page has an entry
    }
    for (const QPair<int, int> &entry : numbers) {
        add(entry.first, entry.second);
    }
    const Object tree = newDictionary();
    set(tree, "/Nums", list);
    set(m_root, "/PageLabels", tree);
}

Object Completion::newDestination(const Place &place) const
{
    const Object result = newArray();
    append(result, pageAt(place.page));
    append(result, newName("/XYZ"));
    append(result, object(qpdf_oh_new_null(m_file)));
    append(result, newNumber(fromBottom(place.y)));
    append(result, object(qpdf_oh_new_null(m_file)));
    return result;
}

void Completion::close(const OpenEntry &entry, bool isOutermost) const
{
    if (entry.count > 0) {
        set(entry.item, "/Last", entry.last);
        // Below the outermost entries nothing is shown at first, which is what the sign means.
        set(entry.item, "/Count", newInteger(isOutermost ? entry.count : -entry.count));
    }
}

void Completion::addOutline(const QVector<OutlineEntry> &entries)
{
    if (entries.isEmpty()) {
        return;
    }
    const Object top = newIndirect(newDictionary());
    QVector<OpenEntry> open;
    open.append({0, top, object(0), 0});
    for (const OutlineEntry &entry : entries) {
        while (open.size() > 1 && open.constLast().level >= entry.level) {
            close(open.takeLast(), false);
        }
        OpenEntry &parent = open.last();
        const Object item = newIndirect(newDictionary());
        set(item, "/Title", newText(entry.title));
        set(item, "/Parent", parent.item);
        set(item, "/Dest", newDestination(entry.place));
        if (parent.count > 0) {
            set(item, "/Prev", parent.last);
            set(parent.last, "/Next", item);
        } else {
            set(parent.item, "/First", item);
        }
        parent.last = item;
        ++parent.count;
        open.append({entry.level, item, object(0), 0});
    }
    while (!open.isEmpty()) {
        const OpenEntry entry = open.takeLast();
        close(entry, open.isEmpty());
    }
    set(m_root, "/Outlines", top);
    set(m_root, "/PageMode", newName("/UseOutlines"));
}

Object Completion::newAction(const QString &address) const
{
    const Object action = newDictionary();
    set(action, "/S", newName("/URI"));
    set(action, "/URI", newBytes(QUrl(address).toEncoded()));
    return action;
}

Object Completion::newArea(const QRectF &area) const
{
    const Object result = newArray();
    append(result, newNumber(area.left() / MRVPdfWriter::DotsPerPoint));
    append(result, newNumber(fromBottom(area.bottom())));
    append(result, newNumber(area.right() / MRVPdfWriter::DotsPerPoint));
    append(result, newNumber(fromBottom(area.top())));
    return result;
}

// They are in order of their pages.
void Completion::addLinks(const QVector<Link> &links, const QHash<QString, Place> &targets)
{
    if (links.isEmpty()) {
        return;
    }
    const Object noBorder = newIndirect(object(qpdf_oh_parse(m_file, "[0 0 0]")));
    int page = -1;
    Object list = newArray(); // of the annotations of a page
    for (const Link &link : links) {
        const bool isInside = link.address.startsWith(u'#');
        const auto target = targets.constFind(link.address.mid(1));
        if (isInside && target == targets.cend()) {
            continue;
        }
        const Object annotation = newDictionary();
        set(annotation, "/Type", newName("/Annot"));
        set(annotation, "/Subtype", newName("/Link"));
        set(annotation, "/Rect", newArea(link.area));
        set(annotation, "/Border", noBorder);
        set(annotation, "/F", newInteger(4)); // printed with the page
        if (isInside) {
            set(annotation, "/Dest", newDestination(*target));
        } else {
            set(annotation, "/A", newAction(link.address));
        }
        if (link.page != page) {
            page = link.page;
            list = newIndirect(newArray());
            set(pageAt(page), "/Annots", list);
        }
        append(list, newIndirect(annotation));
    }
}

// Qt marks the parts of fonts that are in the file by letters, in the order of a hash. Here the
// order is that of their first use.
void Completion::nameFonts(int pageCount)
{
    QHash<QByteArray, QByteArray> names;
    for (int page = 0; page < pageCount; ++page) {
        const Object resources = get(pageAt(page), "/Resources");
        const Object fonts = get(resources, "/Font");
        if (!qpdf_oh_is_dictionary(m_file, fonts.handle())) {
            continue;
        }
        QVector<QByteArray> keys;
        qpdf_oh_begin_dict_key_iter(m_file, fonts.handle());
        while (qpdf_oh_dict_more_keys(m_file)) {
            keys.append(qpdf_oh_dict_next_key(m_file));
        }
        for (const QByteArray &key : qAsConst(keys)) {
            const Object list = get(get(fonts, key.constData()), "/DescendantFonts");
            if (!qpdf_oh_is_array(m_file, list.handle())) {
                continue;
            }
            const Object font = object(qpdf_oh_get_array_item(m_file, list.handle(), 0));
            const Object descriptor = get(font, "/FontDescriptor");
            const QByteArray name = qpdf_oh_get_name(m_file, get(descriptor, "/FontName").handle());
            constexpr int TagLength = 8; // "/ABCDEF+", ISO 32000-1, 9.6.4
            if (name.indexOf('+') + 1 != TagLength || names.contains(name)) {
                continue;
            }
            QByteArray tag = QByteArrayLiteral("/AAAAAA+");
            for (int i = names.size(), place = TagLength - 2; i > 0; i /= 26, --place) {
                tag[place] = char('A' + i % 26);
            }
            const QByteArray ownName = tag + name.mid(TagLength);
            names.insert(name, ownName);
            names.insert(ownName, ownName); // which a font that comes later does not have
            set(descriptor, "/FontName", newName(ownName.constData()));
        }
    }
}

// Writes a file again, with what is changed in it.
template<typename Change>
bool rewrite(const QByteArray &written, qpdf_object_stream_e packing, Change change,
             QByteArray *bytes, MRVErrorSink error)
{
    qpdf_data file = qpdf_init();
    const std::unique_ptr<qpdf_data, void (*)(qpdf_data *)> owner(&file, qpdf_cleanup);
    qpdf_set_suppress_warnings(file, QPDF_TRUE);
    qpdf_silence_errors(file);
    int result = qpdf_read_memory(file, "pdf", written.constData(),
                                  static_cast<unsigned long long>(written.size()), nullptr);
    if ((result & QPDF_ERRORS) == 0) {
        change(file);
        result = qpdf_init_write_memory(file);
    }
    if ((result & QPDF_ERRORS) == 0) {
        qpdf_set_object_stream_mode(file, packing);
        qpdf_set_deterministic_ID(file, QPDF_TRUE);
        result = qpdf_write(file);
    }
    if ((result & QPDF_ERRORS) != 0 || qpdf_has_error(file)) {
        return MRV::fail(
            error, QString::fromLocal8Bit(qpdf_get_error_full_text(file, qpdf_get_error(file))));
    }
    *bytes = QByteArray(reinterpret_cast<const char *>(qpdf_get_buffer(file)),
                        int(qpdf_get_buffer_length(file)));
    return true;
}

} // namespace

class MRVPdfWriter::Private
{
public:
    Private(const QSizeF &paper, const MRVPdfProperties &documentProperties);
    bool complete(QByteArray *bytes, MRVErrorSink error) const;

    MRVPdfProperties properties;
    qreal paperHeight;
    QBuffer buffer;
    std::unique_ptr<QPdfWriter> writer;
    QPainter painter;
    bool isValid = true;
    int page = 0;
    QVector<QPair<int, int>> numbers; // page from 0, number
    QVector<OutlineEntry> outline;
    QVector<Link> links;
    QHash<QString, Place> targets;
};

MRVPdfWriter::Private::Private(const QSizeF &paper, const MRVPdfProperties &documentProperties)
    : properties(documentProperties)
    , paperHeight(paper.height())
{
    buffer.open(QIODevice::WriteOnly);
    writer = std::make_unique<QPdfWriter>(&buffer);
    writer->setResolution(DotsPerInch);
    writer->setPageSize(QPageSize(paper, QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer->setPageMargins(QMarginsF());
    isValid = painter.begin(writer.get());
}

bool MRVPdfWriter::Private::complete(QByteArray *bytes, MRVErrorSink error) const
{
    // The first file has its objects in the order in which they are reached from the root, and not
    // in that of a hash. In the second they are packed, which goes by the numbers of the first.
    QByteArray ordered;
    const auto addAll = [this](qpdf_data file) {
        Completion completion(file, paperHeight);
        completion.setProperties(properties);
        completion.setPageNumbers(numbers);
        completion.addOutline(outline);
        completion.addLinks(links, targets);
        completion.nameFonts(page + 1);
    };
    return rewrite(buffer.data(), qpdf_o_disable, addAll, &ordered, error)
        && rewrite(
               ordered, qpdf_o_generate, [](qpdf_data) {}, bytes, error);
}

MRVPdfWriter::MRVPdfWriter(const QSizeF &paper, const MRVPdfProperties &properties)
    : d(std::make_unique<Private>(paper, properties))
{
}

MRVPdfWriter::~MRVPdfWriter() = default;

QPainter *MRVPdfWriter::painter()
{
    return &d->painter;
}

void MRVPdfWriter::newPage()
{
    d->isValid = d->writer->newPage() && d->isValid;
    ++d->page;
}

int MRVPdfWriter::pageCount() const
{
    return d->page + 1;
}

void MRVPdfWriter::setPageNumber(int number)
{
    if (!d->numbers.isEmpty() && d->numbers.constLast().first == d->page) {
        d->numbers.removeLast();
    }
    d->numbers.append({d->page, number});
}

void MRVPdfWriter::addOutline(const QString &title, int level, qreal y)
{
    const QString shown = title.simplified();
    if (!shown.isEmpty()) {
        d->outline.append({shown, qMax(1, level), {d->page, y}});
    }
}

void MRVPdfWriter::addTarget(const QString &name, qreal y)
{
    if (!d->targets.contains(name)) {
        d->targets.insert(name, {d->page, y});
    }
}

void MRVPdfWriter::addLink(const QRectF &area, const QString &address)
{
    if (address.startsWith(u'#') || isOutsideAddress(address)) {
        d->links.append({d->page, area.normalized(), address});
    }
}

QString MRVPdfWriter::missingCharacters(const QString &text, const QFont &font)
{
    const QFontMetricsF metrics(font);
    QSet<uint> known;
    QString missing;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters) {
        const QChar::Category category = QChar::category(character);
        const bool isShown = !QChar::isSpace(character) && category != QChar::Other_Control
            && category != QChar::Other_Format && category != QChar::Mark_NonSpacing
            && character != QChar::ObjectReplacementCharacter;
        if (isShown && !known.contains(character)) {
            known.insert(character);
            missing += metrics.inFontUcs4(character) ? QString() : QString::fromUcs4(&character, 1);
        }
    }
    return missing;
}

QString MRVPdfWriter::missingCharactersNote(const QString &characters)
{
    constexpr int Shown = 10;
    QStringList first;
    const QVector<uint> all = characters.toUcs4();
    for (const uint character : all.mid(0, Shown)) {
        first.append(QString::fromUcs4(&character, 1));
    }
    return tr("characters that no installed font has, and that are empty boxes: %1 (%2%3)")
        .arg(QString::number(all.size()), first.join(u' '),
             QLatin1String(all.size() > Shown ? " ..." : ""));
}

bool MRVPdfWriter::finish(QByteArray *bytes, MRVErrorSink error)
{
    d->isValid = d->painter.end() && d->isValid;
    MRVError reason{MRVErrorKind::Other, tr("the pages cannot be painted")};
    if (d->isValid && d->complete(bytes, &reason)) {
        return true;
    }
    return MRV::fail(error, reason.kind,
                     tr("The PDF document cannot be made: %1").arg(reason.text));
}
