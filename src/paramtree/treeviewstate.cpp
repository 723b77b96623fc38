#include "treeviewstate.h"

#include <stdexcept>
#include <string>

namespace {

constexpr char pathEnd[] = "&lt;";
constexpr char widthMark[] = "&amp;W";
constexpr char visibilityMark[] = "&amp;V";
constexpr char splitterMark[] = "&amp;S";

/// The number at the start of \a text. The messages are the same with every standard library.
int leadingNumber(const QByteArray& text)
{
    try {
        return std::stoi(text.toStdString());
    } catch (const std::invalid_argument&) {
        throw std::invalid_argument("invalid stoi argument");
    } catch (const std::out_of_range&) {
        throw std::out_of_range("stoi argument out of range");
    }
}

/// What follows \a mark in \a text; none without the mark.
std::optional<QByteArray> textAfter(const char* mark, const QByteArray& text)
{
    const int at = text.indexOf(mark);
    if (at < 0)
        return std::nullopt;
    return text.mid(at + static_cast<int>(qstrlen(mark)));
}

/// The end of the last path in \a text. Marks are looked for behind it only: a category may be named like
/// one.
int endOfPaths(const QByteArray& text)
{
    const int last = text.lastIndexOf(pathEnd);
    return last < 0 ? 0 : last + static_cast<int>(qstrlen(pathEnd));
}

} // namespace

TreeViewState TreeViewState::fromText(const QByteArray& text)
{
    TreeViewState state;
    const int end = endOfPaths(text);
    state.m_expanded = text.left(end);
    const QByteArray settings = text.mid(end);
    if (const auto width = textAfter(widthMark, settings))
        state.nameWidth = leadingNumber(*width);
    if (const auto level = textAfter(visibilityMark, settings); level && !level->isEmpty())
        state.visibility = leadingNumber(*level);
    if (const auto splitter = textAfter(splitterMark, settings))
        state.splitter = QByteArray::fromHex(*splitter);
    return state;
}

QByteArray TreeViewState::toText() const
{
    QByteArray text = m_expanded;
    text += widthMark + QByteArray::number(nameWidth);
    text += visibilityMark + QByteArray::number(visibility.value_or(0));
    text += splitterMark + splitter.toHex();
    return text;
}

void TreeViewState::addExpanded(const QString& path)
{
    m_expanded += path.toUtf8() + pathEnd;
}

bool TreeViewState::isExpanded(const QString& path) const
{
    const QByteArray entry = path.toUtf8() + pathEnd;
    for (int at = m_expanded.indexOf(entry); at >= 0; at = m_expanded.indexOf(entry, at + 1)) {
        // Within a longer path it is another category: "B" is not "A/B".
        if (at == 0 || m_expanded.left(at).endsWith(pathEnd))
            return true;
    }
    return false;
}
