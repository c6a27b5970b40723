#include "theme/AddedFonts.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtGui/QFontDatabase>

#include <algorithm>
#include <utility>

namespace TARN {

namespace {

QByteArray digestOf(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result() : QByteArray();
}

} // namespace

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
    for (const QFileInfo &file : files) {
        const QString path = file.absoluteFilePath();
        const QByteArray digest = digestOf(path);
        auto *const same = std::find_if(former.begin(), former.end(), [&digest](const Font &font) {
            return font.digest == digest;
        });
        if (same != former.end() && !digest.isEmpty()) {
            m_fonts.append(*same);
            former.erase(same);
            continue;
        }
        const int id = QFontDatabase::addApplicationFont(path);
        if (id >= 0) {
            m_fonts.append({id, path, digest});
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
    const int id = QFontDatabase::addApplicationFont(m_fonts.first().path);
    QFontDatabase::removeApplicationFont(id);
    m_lookUpsAreOutdated = false;
}

} // namespace TARN
