#include "readers/ReaderDocuments.h"

#include <QtTest/QtTest>

#include <support/ThemeRepository.h>

namespace {

enum Status { Fine = 0, Faulty = 2 };

/// Returns a document that uses as much as \a amount of something.
using MakeDocument = QByteArray (*)(int amount);

QByteArray withType(const QByteArray &declarations, const QByteArray &content)
{
    return "<!DOCTYPE x [" + declarations + "]>{" + content + "}";
}

QByteArray nestedElements(int depth)
{
    // The reader's own element is one of them.
    return "{" + QByteArray("<a>").repeated(depth - 1) + QByteArray("</a>").repeated(depth - 1) +
           "}";
}

QByteArray elementsInEntity(int depth)
{
    return withType("<!ENTITY e '" + QByteArray("<a>").repeated(depth - 1) +
                        QByteArray("</a>").repeated(depth - 1) + "'>",
                    "&e;");
}

QByteArray nestedContentModel(int depth)
{
    return withType("<!ELEMENT x " + QByteArray(depth, '(') + "y" + QByteArray(depth, ')') + ">",
                    {});
}

QByteArray entities(int count)
{
    QByteArray declarations;
    for (int index = 0; index < count; ++index) {
        declarations += "<!ENTITY e" + QByteArray::number(index) + " 'v'>";
    }
    return withType(declarations, {});
}

QByteArray entityText(int characters)
{
    return withType("<!ENTITY e '" + QByteArray(characters - 1, 'v') + "'>", {});
}

QByteArray referencesToNothing(int count)
{
    return withType("<!ENTITY e ''>", QByteArray("&e;").repeated(count));
}

QByteArray referencesToText(int count)
{
    return withType("<!ENTITY e '" + QByteArray(1008, 'v') + "'>",
                    QByteArray("&e;").repeated(count));
}

} // namespace

Q_DECLARE_METATYPE(MakeDocument)

/// How much of what costs more than it looks a theme's files may have: documents that use it up are
/// read, those that use a little more are not.
class DocumentLimitsTest : public QObject
{
    Q_OBJECT

private:
    ThemeRepository m_files;

private Q_SLOTS:
    void limits_data()
    {
        QTest::addColumn<MakeDocument>("document");
        QTest::addColumn<int>("most");
        QTest::newRow("elements in each other") << MakeDocument(nestedElements) << 256;
        QTest::newRow("elements in each other in an entity")
            << MakeDocument(elementsInEntity) << 256;
        QTest::newRow("parentheses in each other") << MakeDocument(nestedContentModel) << 64;
        QTest::newRow("entities") << MakeDocument(entities) << 256;
        QTest::newRow("text of entities") << MakeDocument(entityText) << 65536;
        // A reference counts as 16 characters, and there may be 2^20.
        QTest::newRow("references to nothing") << MakeDocument(referencesToNothing) << 65536;
        QTest::newRow("references to text") << MakeDocument(referencesToText) << 1024;
    }

    void limits()
    {
        QFETCH(MakeDocument, document);
        QFETCH(int, most);
        const QString path = m_files.path(QStringLiteral("file.xml"));
        for (const FileReader &reader : fileReaders()) {
            m_files.write(QStringLiteral("file.xml"), framed(document(most), reader));
            QCOMPARE(reader.status(path), int(Fine));
            m_files.write(QStringLiteral("file.xml"), framed(document(most + 1), reader));
            QCOMPARE(reader.status(path), int(Faulty));
        }
    }
};

QTEST_MAIN(DocumentLimitsTest)
#include "DocumentLimitsTest.moc"
