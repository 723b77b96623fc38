#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// What a feature browser remembers of its look, and the text that carries it.
///
/// The text is UTF-8: the path of each expanded category ("A", "A/B") followed by "&lt;", then "&amp;W" with
/// the width of the name column in pixels, "&amp;V" with the visibility level and "&amp;S" with the state of
/// the splitter in hexadecimal. The entities are mere delimiters and never decoded.
class TreeViewState
{
public:
    /// Throws std::invalid_argument ("invalid stoi argument") for a width or level that is no number, and
    /// std::out_of_range ("stoi argument out of range") for one beyond 32 bits.
    static TreeViewState fromText(const QByteArray& text);
    QByteArray toText() const;

    void addExpanded(const QString& path);
    bool isExpanded(const QString& path) const;

    int nameWidth = 0;             ///< pixels; 0 leaves the width as it is
    std::optional<int> visibility; ///< none leaves the level as it is
    QByteArray splitter;           ///< empty leaves the splitter as it is

private:
    QByteArray m_expanded; // each path followed by the separator
};
