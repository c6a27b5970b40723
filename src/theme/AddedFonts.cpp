#include "theme/AddedFonts.h"

#include <QtCore/QDir>
#include <QtGui/QFontDatabase>

#include <algorithm>
#include <utility>

namespace TARN {

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

bool AddedFonts::FontFile::isUnchanged() const
{
    const QFileInfo info(path);
    return info.isFile() && info.size() == size && info.lastModified() == changed;
}

/// Nothing is read before there are two files to be compared, which for the first theme there are
/// not.
bool AddedFonts::FontFile::hasContentOf(const FontFile &other) const
{
    return size == other.size && contentOf(path) == contentOf(other.path);
}

void AddedFonts::add(const QString &folder)
{
    QVector<Font> none;
    add(folder, none);
}

void AddedFonts::replace(const QString &folder)
{
    QVector<Font> former = std::exchange(m_fonts, {});
    add(folder, former);
    for (const Font &font : qAsConst(former)) {
        QFontDatabase::removeApplicationFont(font.id);
        m_lookUpsAreOutdated = false;
    }
    forgetLookUps();
}

void AddedFonts::add(const QString &folder, QVector<Font> &former)
{
    const QFileInfoList files =
        QDir(folder).entryInfoList({QStringLiteral("*.ttf")}, QDir::NoFilter, QDir::NoSort);
    for (const QFileInfo &info : files) {
        const FontFile file{info.absoluteFilePath(), info.size(), info.lastModified()};
        auto *const same = std::find_if(former.begin(), former.end(), [&file](const Font &font) {
            return font.file.isUnchanged() && font.file.hasContentOf(file);
        });
        if (same != former.end()) {
            m_fonts.append(*same);
            former.erase(same);
            continue;
        }
        const int id = QFontDatabase::addApplicationFont(file.path);
        if (id >= 0) {
            m_fonts.append({id, file});
            m_lookUpsAreOutdated = true;
        }
    }
}

void AddedFonts::forgetLookUps()
{
    if (!m_lookUpsAreOutdated || m_fonts.isEmpty()) {
        return;
    }
    // The font database forgets what it has found when a font is removed, and not before.
    const int id = QFontDatabase::addApplicationFont(m_fonts.first().file.path);
    QFontDatabase::removeApplicationFont(id);
    m_lookUpsAreOutdated = false;
}

} // namespace TARN
