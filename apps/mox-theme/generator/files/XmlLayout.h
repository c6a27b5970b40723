#pragma once

#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace TARN::ThemeTool {

/// Lays out an XML file for people: an element a line, and comments that are wrapped.
class XmlLayout
{
public:
    using Attributes = QVector<QPair<QString, QString>>;

    XmlLayout();

    /// Begins an element that holds others.
    void open(const QString &tag, const Attributes &attributes = {});
    /// Ends the element that was begun last.
    void close();
    /// Writes an element that holds \a text alone.
    void element(const QString &tag, const QString &text, const Attributes &attributes = {});
    /// Writes \a text as a comment; nothing when it is empty.
    void comment(const QString &text);
    /// Writes \a paragraphs as one comment, with its marks on lines of their own.
    void commentBlock(const QStringList &paragraphs);
    /// Leaves a line empty.
    void gap();

    /// Returns the file.
    [[nodiscard]] QByteArray toUtf8() const { return m_text.toUtf8(); }

private:
    void line(const QString &text);

    QString m_text;
    QStringList m_openTags;
};

} // namespace TARN::ThemeTool
