#include "readers/ReaderDocuments.h"

#include <readers/QPaletteReader.h>
#include <readers/ThemeConfigurationReader.h>
#include <theme/BaseThemeSettings.h>

#include <QtCore/QFile>

#include <support/ThemeRepository.h>

namespace {
constexpr int blockSize = 1 << 16;
} // namespace

const QVector<FileReader> &fileReaders()
{
    static const QByteArray configuration = ThemeConfiguration().toXml();
    static const int configurationEnd = configuration.lastIndexOf("</");
    static const QVector<FileReader> readers{
        {"configuration", configuration.left(configurationEnd), configuration.mid(configurationEnd),
         [](const QString &path) { return TARN::ThemeConfigurationReader(path).getStatus(); }},
        {"palette", "<QPalette>", "</QPalette>",
         [](const QString &path) {
             return TARN::QPaletteReader(path, {}, {}, QPalette()).getStatus();
         }},
        {"description", "<theme><name>Name</name>", "</theme>",
         [](const QString &path) { return TARN::BaseThemeSettings(path).getStatus(); }},
    };
    return readers;
}

QByteArray framed(QByteArray text, const FileReader &reader)
{
    return text.replace('{', reader.begin).replace('}', reader.end);
}

QByteArray RepeatedDocument::numbered(qint64 &number) const
{
    QByteArray block;
    while (block.size() < blockSize) {
        block += QByteArray(unit).replace('@', QByteArray::number(number++));
    }
    return block;
}

bool RepeatedDocument::write(const QString &path, const FileReader &reader, qint64 size) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    const QByteArray begin = framed(head, reader);
    const QByteArray end = framed(tail, reader);
    const QByteArray block = unit.repeated(blockSize / unit.size());
    file.write(begin);
    for (qint64 number = 0; file.pos() + end.size() < size;) {
        file.write(unit.contains('@') ? numbered(number) : block);
    }
    file.write(end);
    return file.flush();
}
