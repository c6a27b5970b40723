#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace TARN {

/// The fonts that themes have registered with the font database. They go with the application.
class AddedFonts
{
public:
    /// Registers the fonts "*.ttf" in \a folder.
    void add(const QString &folder);

    /// Registers the fonts "*.ttf" in \a folder in place of all others. A font that is there
    /// already stays as it is, so that nobody who shows it hears of a change; the others are there
    /// before those that go, and what was missing when somebody asked for it is looked up anew.
    void replace(const QString &folder);

private:
    /// A file as long as nobody writes it.
    struct FontFile
    {
        QString path;
        qint64 size;
        QDateTime changed;

        bool isUnchanged() const;
        bool hasContentOf(const FontFile &other) const;
    };

    struct Font
    {
        int id;
        FontFile file;
    };

    /// Registers the fonts in \a folder but for those that are among \a former, which are taken
    /// out of there.
    void add(const QString &folder, QVector<Font> &former);
    /// Has every font be looked up anew: what was missing when it was asked for may be there now.
    void forgetLookUps();

    QVector<Font> m_fonts;
    bool m_lookUpsAreOutdated = false;
};

} // namespace TARN
