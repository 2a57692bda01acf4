#include "dom/mrvdomdoc.h"

#include "util/mrvclosestmatch.h"

#include <QRegularExpression>
#include <QStack>

#include <algorithm>
#include <functional>

// Paths: how they are taken apart, followed, and what they name removed.

namespace {

const QLatin1String Parent("..");
const QLatin1String Self(".");

bool isNavigation(const QString &name)
{
    return name == Parent || name == Self;
}

// One plain name is the path that is looked up most; it needs no taking apart.
bool isPlainName(const QString &path)
{
    for (const QChar c : path) {
        if (c == u'/' || c == u'@' || c.isSpace()) {
            return false;
        }
    }
    return !isNavigation(path);
}

} // namespace

MRVDomDoc::Step MRVDomDoc::stepOf(const QStringList &parts)
{
    Step step;
    step.name = parts.value(0).trimmed();
    for (int i = 1; i < parts.size(); ++i) {
        const QString &part = parts[i];
        const int equals = part.indexOf(u'=');
        if (equals < 0) {
            step.predicates.append({part.trimmed(), QString(), false});
        } else {
            step.predicates.append(
                {part.left(equals).trimmed(), part.mid(equals + 1).trimmed(), true});
        }
    }
    return step;
}

bool MRVDomDoc::predicatesHold(const Step &step, const QDomElement &e)
{
    for (const Predicate &predicate : step.predicates) {
        // An attribute that is missing has an empty value.
        if (predicate.compares
                ? e.attribute(predicate.attribute, QLatin1String("")) != predicate.value
                : !e.hasAttribute(predicate.attribute)) {
            return false;
        }
    }
    return true;
}

bool MRVDomDoc::holds(const Step &step, const QDomElement &e)
{
    return !e.isNull()
        && (isNavigation(step.name) || (!step.name.isEmpty() && step.name == e.tagName()))
        && predicatesHold(step, e);
}

bool MRVDomDoc::matchElement(QDomElement e, const QStringList &parts) const
{
    return holds(stepOf(parts), e);
}

bool MRVDomDoc::matchElement(QDomElement e, const QString &step) const
{
    return matchElement(e, step.split(u'@', Qt::SkipEmptyParts));
}

const QVector<MRVDomDoc::Step> &MRVDomDoc::steps() const
{
    if (m_isParsed) {
        return m_pathSteps;
    }
    QStringList texts = m_path.split(u'/');
    if (texts.constLast().trimmed().isEmpty()) {
        texts.removeLast();
    }
    m_isAbsolute = !texts.isEmpty() && texts.constFirst().trimmed().isEmpty();
    if (m_isAbsolute) {
        texts.removeFirst();
    }
    m_pathSteps.clear();
    QStack<int> ways; // steps down from which nothing has led back so far
    for (const QString &text : qAsConst(texts)) {
        Step step = stepOf(text.split(u'@', Qt::SkipEmptyParts));
        step.text = text;
        const int index = m_pathSteps.size();
        if (step.name == Parent && !ways.isEmpty()) {
            m_pathSteps[ways.pop()].wayBack = index;
        } else if (!isNavigation(step.name)) {
            ways.push(index);
        }
        m_pathSteps.append(step);
    }
    m_isParsed = true;
    return m_pathSteps;
}

// The document element is looked for only when it is no longer where it was: looking for it costs
// as much as the rest of find().
bool MRVDomDoc::hasRoot() const
{
    if (m_root.isNull() || m_root.parentNode().isNull()) {
        m_root = m_document.documentElement();
    }
    return !m_root.isNull();
}

QDomElement MRVDomDoc::find(const QString &path) const
{
    if (path.isEmpty() || !hasRoot()) {
        m_findPosition = EmptyElement;
        return hasRoot() ? m_workElement : EmptyElement;
    }
    if (path != m_path) {
        m_path = path;
        m_isParsed = false;
    }
    if (isPlainName(path)) {
        const QDomElement found = m_workElement.firstChildElement(path);
        m_findPosition = found;
        return found;
    }
    m_findPosition = EmptyElement;
    steps();
    if (!m_isAbsolute) {
        QDomElement start = m_workElement;
        return find(start, 0);
    }
    const QDomElement root = m_document.documentElement();
    if (m_pathSteps.isEmpty()) {
        return root;
    }
    return holds(m_pathSteps[0], root) ? resolve(root, 1, m_pathSteps.size()) : EmptyElement;
}

QDomElement MRVDomDoc::find(QDomElement &start, unsigned int index) const
{
    const int count = steps().size();
    if (start.isNull() || index >= unsigned(count)) {
        return start;
    }
    const QDomNode before = m_findPosition;
    const QDomElement found = resolve(start, int(index), count);
    if (found.isNull()) {
        m_findPosition = before;
    }
    return found;
}

/*
 * Follows the steps from index up to end. Children are tried in turn until the rest of the steps
 * can be followed below one. A step down that a later ".." takes back only asks whether there is a
 * child below which the steps between can be followed: which one does not matter for what comes
 * after, so none is tried again, and a path takes time linear in the tree however often it goes
 * down and up.
 */
QDomElement MRVDomDoc::resolve(QDomElement e, int index, int end) const
{
    while (!e.isNull() && index < end) {
        const Step *step = &m_pathSteps[index];
        if (!isNavigation(step->name)) {
            if (step->wayBack < 0) {
                return resolveBelow(e, index, end);
            }
            if (resolveBelow(e, index, step->wayBack).isNull()) {
                return EmptyElement;
            }
            index = step->wayBack;
            step = &m_pathSteps[index];
        } else if (step->name == Parent) {
            e = e.parentNode().toElement();
        }
        if (!holds(*step, e)) {
            return EmptyElement;
        }
        ++index;
    }
    return e;
}

QDomElement MRVDomDoc::resolveBelow(const QDomElement &e, int index, int end) const
{
    const Step &step = m_pathSteps[index];
    if (step.name.isEmpty()) {
        return EmptyElement; // Qt would take any child
    }
    for (QDomElement child = e.firstChildElement(step.name); !child.isNull();
         child = child.nextSiblingElement(step.name)) {
        if (!predicatesHold(step, child)) {
            continue;
        }
        const QDomElement found = resolve(child, index + 1, end);
        if (!found.isNull()) {
            if (index == 0) {
                m_findPosition = child;
            }
            return found;
        }
    }
    return EmptyElement;
}

QDomElement MRVDomDoc::findNext() const
{
    if (m_findPosition.isNull()) {
        return EmptyElement;
    }
    const int count = steps().size();
    const Step &step = m_pathSteps[0];
    QDomElement sibling = m_findPosition.nextSiblingElement(step.name);
    for (; !sibling.isNull(); sibling = sibling.nextSiblingElement(step.name)) {
        if (predicatesHold(step, sibling)) {
            const QDomElement found = resolve(sibling, 1, count);
            if (!found.isNull()) {
                m_findPosition = sibling;
                return found;
            }
        }
    }
    m_findPosition = EmptyElement;
    return EmptyElement;
}

QVector<QDomElement> MRVDomDoc::findAll(const QString &path) const
{
    // What is looked up here must not change what findNext() does.
    MRVDomDoc other;
    other.m_document = m_document;
    other.m_workElement = m_workElement;
    const QDomElement first = other.find(path);
    if (path.isEmpty() || first.isNull()) {
        return first.isNull() ? QVector<QDomElement>() : QVector<QDomElement>{first};
    }
    other.steps(); // which tells whether it is absolute
    QVector<QDomElement> level{other.m_isAbsolute ? documentElement() : m_workElement};
    for (int i = other.m_isAbsolute ? 1 : 0; i < other.steps().size(); ++i) {
        const Step &step = other.m_pathSteps[i];
        QVector<QDomElement> next;
        for (const QDomElement &e : qAsConst(level)) {
            if (!isNavigation(step.name)) {
                addChildren(e, step, &next);
                continue;
            }
            const QDomElement target = step.name == Self ? e : e.parentNode().toElement();
            // Elements of one parent follow each other.
            if (!target.isNull() && predicatesHold(step, target)
                && (next.isEmpty() || next.constLast() != target)) {
                next.append(target);
            }
        }
        level = next;
    }
    return level;
}

void MRVDomDoc::addChildren(const QDomElement &e, const Step &step, QVector<QDomElement> *children)
{
    for (QDomElement child = e.firstChildElement(step.name); !child.isNull();
         child = child.nextSiblingElement(step.name)) {
        if (predicatesHold(step, child)) {
            children->append(child);
        }
    }
}

QStringList MRVDomDoc::childNames(const QDomElement &element)
{
    QStringList names;
    for (QDomElement e = element.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        names.append(e.tagName());
    }
    names.removeDuplicates();
    return names;
}

QString MRVDomDoc::whyMissing(const QString &path) const
{
    // What is looked up here must not change what findNext() does.
    MRVDomDoc other;
    other.m_document = m_document;
    other.m_workElement = m_workElement;
    return other.exists(path) ? QString() : other.firstMissing(path);
}

QString MRVDomDoc::firstMissing(const QString &path)
{
    const QDomElement root = documentElement();
    if (root.isNull()) {
        return tr("there is no document element");
    }
    const bool isAbsolute = path.startsWith(u'/');
    QString reached = isAbsolute ? QStringLiteral("/") : QString();
    const QStringList steps = path.split(u'/', Qt::SkipEmptyParts);
    int missing = 0;
    while (missing < steps.size() && exists(reached + steps[missing])) {
        reached += steps[missing] + u'/';
        ++missing;
    }
    const QString step = steps.value(missing);
    if (missing == 0 && isAbsolute) {
        return tr("the document element is '%1', not '%2'").arg(root.tagName(), step);
    }
    if (!cd(reached)) {
        return tr("there is no work element");
    }
    if (step.trimmed() == Parent) {
        return tr("nothing is above %1").arg(workPath());
    }
    const QString name = step.section(u'@', 0, 0).trimmed();
    const QStringList names = childNames(m_workElement);
    const QString meant = names.contains(name) ? QString() : MRV::closestMatch(name, names);
    return meant.isNull() ? tr("no '%1' below %2").arg(step, workPath())
                          : tr("no '%1' below %2; did you mean '%3'?").arg(step, workPath(), meant);
}

bool MRVDomDoc::exists(const QString &path) const
{
    return !find(path).isNull();
}

int MRVDomDoc::remove(const QString &path, bool all)
{
    return removeFound(path, QString(), all);
}

int MRVDomDoc::removeAttr(const QString &attrName, const QString &path, bool all)
{
    return attrName.isEmpty() ? 0 : removeFound(path, attrName, all);
}

// Removes what is found, or its attribute when a name is given.
int MRVDomDoc::removeFound(const QString &path, const QString &attribute, bool all)
{
    if (all) {
        return removeAll(path, attribute);
    }
    const QDomElement found = find(path);
    return !found.isNull() && removeOne(found, attribute) ? 1 : 0;
}

/*
 * Removing what was found and looking again would begin at the first child each time. As removing
 * makes nothing match that did not match before, a path that only leads down names the same
 * elements all the while.
 */
int MRVDomDoc::removeAll(const QString &path, const QString &attribute)
{
    QDomElement found = find(path);
    if (found.isNull()) {
        return 0;
    }
    QVector<QDomElement> up;
    int count = 0;
    if (leadsDown(path, &up)) {
        const QVector<QDomElement> all = findAll(path);
        for (const QDomElement &e : all) {
            count += removeOne(e, attribute);
            if (attribute.isEmpty() && up.contains(e)) {
                break; // nothing leads up any more from a work element that stands nowhere
            }
        }
    } else {
        // An element remains after its attribute: only those that have it are looked for.
        const int end = path.lastIndexOf(QRegularExpression(QStringLiteral("[^/\\s]"))) + 1;
        const QString next =
            attribute.isEmpty() || end == 0 ? path : path.left(end) + u'@' + attribute;
        for (found = find(next); !found.isNull() && removeOne(found, attribute);
             found = find(next)) {
            ++count;
        }
    }
    m_findPosition = EmptyElement;
    return count;
}

// Whether the last path goes up no more once it has gone down. "up" receives the elements that it
// leaves before, the work element first.
bool MRVDomDoc::leadsDown(const QString &path, QVector<QDomElement> *up) const
{
    bool isDown = false;
    QDomElement e = m_workElement;
    steps(); // which tells whether it is absolute
    for (int i = m_isAbsolute ? 1 : 0; !path.isEmpty() && i < steps().size(); ++i) {
        const Step &step = m_pathSteps[i];
        const bool isUp = step.name == Parent;
        if (isDown && (isUp || (step.name == Self && !step.predicates.isEmpty()))) {
            return false;
        }
        isDown = isDown || !isNavigation(step.name);
        if (isUp) {
            up->append(e);
            e = e.parentNode().toElement();
        }
    }
    return isDown;
}

bool MRVDomDoc::removeOne(QDomElement e, const QString &attribute)
{
    if (attribute.isEmpty()) {
        return removeElement(e);
    }
    const bool hasIt = e.hasAttribute(attribute);
    e.removeAttribute(attribute);
    return hasIt;
}

bool MRVDomDoc::removeElement(const QDomElement &e)
{
    QDomNode parent = e.parentNode();
    if (parent.isNull()) {
        return false;
    }
    parent.removeChild(e);
    const auto holdsCursor = [this](const QDomElement &removed) {
        for (QDomNode node : {QDomNode(m_workElement), QDomNode(m_workChild), m_findPosition}) {
            while (!node.isNull() && node != removed) {
                node = node.parentNode();
            }
            if (!node.isNull()) {
                return true;
            }
        }
        return false;
    };
    // The cursor's element would outlive the removed one, and then point to neighbours that do not.
    m_removed.erase(std::remove_if(m_removed.begin(), m_removed.end(), std::not_fn(holdsCursor)),
                    m_removed.end());
    if (holdsCursor(e)) {
        m_removed.append(e);
    }
    return true;
}
