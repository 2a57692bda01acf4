#include "screenplay/mrvscriptnumbers.h"

#include "screenplay/mrvfountain.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <tuple>

namespace {

using Element = MRVFountainElement;

constexpr QLatin1String Letters("ABCDEFGHJKLMNPQRSTUVWXYZ"); // without I and O
constexpr int MostDigits = 9;

// A number in its parts: "A12B" comes before "12B", which comes after "12".
struct Number
{
    explicit Number(const QString &text);

    bool isValid = false;
    QString prefix;
    int value = 0;
    QString suffix;
};

Number::Number(const QString &text)
{
    const auto lettersFrom = [&text](int at) {
        int end = at;
        while (end < text.size() && text.at(end).isLetter()) {
            ++end;
        }
        return text.mid(at, end - at).toUpper();
    };
    prefix = lettersFrom(0);
    int end = prefix.size();
    while (end < text.size() && text.at(end) >= u'0' && text.at(end) <= u'9') {
        ++end;
    }
    const QString digits = text.mid(prefix.size(), end - prefix.size());
    suffix = lettersFrom(end);
    isValid = !digits.isEmpty() && digits.size() <= MostDigits
        && prefix.size() + digits.size() + suffix.size() == text.size();
    value = digits.toInt();
}

QString reversed(QString text)
{
    std::reverse(text.begin(), text.end());
    return text;
}

// Each letter before a number stands right before what follows it: AA1, A1, AB1, B1, 1.
bool isBefore(const Number &one, const Number &other)
{
    const auto key = [](const Number &number) {
        return std::make_tuple(number.value, number.suffix,
                               reversed(number.prefix) + QChar(0xFFFF));
    };
    return one.isValid && other.isValid && key(one) < key(other);
}

// Letters that sort as numbers do: all of one length.
QString lettersOf(int index, int width)
{
    QString text;
    for (; width > 0; --width) {
        text.prepend(Letters.at(index % Letters.size()));
        index /= Letters.size();
    }
    return text;
}

// The letters after the last one of a text, in its place; nothing where it has none of them.
QStringList following(const QString &text)
{
    QStringList all;
    const QChar last = text.isEmpty() ? QChar() : text.at(text.size() - 1);
    for (int i = 0; i < Letters.size() && !text.isEmpty(); ++i) {
        if (QChar(Letters.at(i)) > last) {
            all.append(text.left(text.size() - 1) + QChar(Letters.at(i)));
        }
    }
    return all;
}

QStringList extended(const QString &text)
{
    QStringList all;
    for (int i = 0; i < Letters.size(); ++i) {
        all.append(text + QChar(Letters.at(i)));
    }
    return all;
}

class Numberer
{
public:
    explicit Numberer(QVector<Element *> scenes);

    int number();

private:
    int nextNumbered(int scene) const;
    void fillGap(int begin, int end);
    QString unused(const QString &number);
    QString between(const QString &before, const QString &after) const;
    QStringList candidates(const QString &before, const QString &after) const;
    void give(Element *scene, const QString &number);

    const QVector<Element *> m_scenes;
    QSet<QString> m_used; // in capitals
    QHash<QString, int> m_tried; // how many letters were put after a number that is used
    qint64 m_last = 0; // the largest whole number that is used
    int m_given = 0;
};

Numberer::Numberer(QVector<Element *> scenes)
    : m_scenes(std::move(scenes))
{
    for (const Element *scene : m_scenes) {
        if (!scene->sceneNumber.isEmpty()) {
            m_used.insert(scene->sceneNumber.toUpper());
            const Number number(scene->sceneNumber);
            m_last = number.isValid ? qMax(m_last, qint64(number.value)) : m_last;
        }
    }
}

void Numberer::give(Element *scene, const QString &number)
{
    scene->sceneNumber = number;
    m_used.insert(number.toUpper());
    ++m_given;
}

int Numberer::nextNumbered(int scene) const
{
    while (scene < m_scenes.size() && !m_scenes.at(scene)->sceneNumber.isEmpty()) {
        ++scene;
    }
    return scene;
}

int Numberer::number()
{
    for (int begin = nextNumbered(0); begin < m_scenes.size();) {
        int end = begin;
        while (end < m_scenes.size() && m_scenes.at(end)->sceneNumber.isEmpty()) {
            ++end;
        }
        fillGap(begin, end);
        begin = nextNumbered(end);
    }
    return m_given;
}

void Numberer::fillGap(int begin, int end)
{
    if (end == m_scenes.size()) {
        for (int i = begin; i < end; ++i) {
            do {
                ++m_last;
            } while (m_used.contains(QString::number(m_last)));
            give(m_scenes.at(i), QString::number(m_last));
        }
        return;
    }
    const QString after = m_scenes.at(end)->sceneNumber;
    QString before = begin > 0 ? m_scenes.at(begin - 1)->sceneNumber : QString();
    const int count = end - begin;
    int width = 1;
    for (qint64 most = Letters.size(); most < count; most *= Letters.size()) {
        ++width;
    }
    for (int i = begin; i < end; ++i) {
        QString number;
        if (count <= Letters.size()) {
            number = between(before, after);
        } else {
            // More than there are letters: all get as many of them, so that they stay short.
            const QString letters = lettersOf(i - begin, width);
            number = begin > 0 ? m_scenes.at(begin - 1)->sceneNumber + letters
                               : reversed(letters) + after;
        }
        before = unused(number);
        give(m_scenes.at(i), before);
    }
}

// The number, or with more letters where it is used already: in a script whose numbers have no
// order, there may be none in between.
QString Numberer::unused(const QString &number)
{
    QString result = number;
    while (m_used.contains(result.toUpper())) {
        int index = m_tried[number]++;
        int width = 1;
        for (int count = Letters.size(); index >= count; count *= Letters.size()) {
            index -= count;
            ++width;
        }
        result = number + lettersOf(index, width);
    }
    return result;
}

// The first number that is free and stands between two others; one that is free, at least.
QString Numberer::between(const QString &before, const QString &after) const
{
    const QStringList all = candidates(before, after);
    for (const QString &candidate : all) {
        const Number number(candidate);
        if (!m_used.contains(candidate.toUpper()) && isBefore(number, Number(after))
            && (before.isEmpty() || isBefore(Number(before), number))) {
            return candidate;
        }
    }
    return before.isEmpty() ? QChar(Letters.at(0)) + after : before + QChar(Letters.at(0));
}

QStringList Numberer::candidates(const QString &before, const QString &after) const
{
    const Number left(before);
    const Number right(after);
    QStringList all;
    if (left.isValid) {
        const QString base = left.prefix.isEmpty() ? QString::number(left.value) : QString();
        const QStringList suffixes = left.suffix.isEmpty() ? QStringList() : following(left.suffix);
        for (const QString &suffix : suffixes + extended(left.suffix)) {
            if (!base.isEmpty()) {
                all.append(base + suffix);
            }
        }
    }
    if (right.isValid) {
        const QString base = QString::number(right.value) + right.suffix;
        const bool isBeside = left.isValid && !left.prefix.isEmpty() && left.value == right.value
            && left.suffix == right.suffix;
        QStringList prefixes = isBeside ? following(left.prefix) : extended(QString());
        for (int i = 0; i < Letters.size() && !right.prefix.isEmpty(); ++i) {
            prefixes.append(QChar(Letters.at(i)) + right.prefix);
        }
        for (const QString &prefix : qAsConst(prefixes)) {
            all.append(prefix + base);
        }
    }
    return all;
}

QVector<Element *> scenesOf(MRVFountainScript *script)
{
    QVector<Element *> scenes;
    for (Element &element : script->elements) {
        if (element.kind == Element::SceneHeading) {
            scenes.append(&element);
        }
    }
    return scenes;
}

} // namespace

int MRVScriptNumbers::number(MRVFountainScript *script)
{
    return Numberer(scenesOf(script)).number();
}

int MRVScriptNumbers::renumber(MRVFountainScript *script, int first)
{
    int changed = 0;
    qint64 number = first;
    const QVector<Element *> scenes = scenesOf(script);
    for (Element *scene : scenes) {
        const QString text = QString::number(number++);
        changed += scene->sceneNumber != text ? 1 : 0;
        scene->sceneNumber = text;
    }
    return changed;
}

bool MRVScriptNumbers::isBefore(const QString &one, const QString &other)
{
    return ::isBefore(Number(one), Number(other));
}
