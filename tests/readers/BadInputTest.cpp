#include "readers/PeakMemory.h"
#include "readers/ReaderDocuments.h"

#include <theme/BaseThemeSettings.h>

#include <QtCore/QFileInfo>
#include <QtCore/QTextCodec>
#include <QtTest/QtTest>

#include <support/ProcessorTimer.h>
#include <support/ThemeRepository.h>

using TARN::BaseThemeSettings;

namespace {

enum Status { Fine = 0, CannotOpen = 1, Faulty = 2 };

// The second is clang's; Qt's headers define it for the others.
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer)
constexpr bool isSanitized = true;
constexpr qint64 largeSize = 5'000'000;
#else
constexpr bool isSanitized = false;
constexpr qint64 largeSize = 50'000'000;
#endif
/// What the readers have in common is shown with one of them.
constexpr qint64 mediumSize = largeSize / 25;

/// Far more than any of the documents takes, far less than a cost that grows with the square.
constexpr qint64 patience = 60'000;

/// The document tree takes up to 58 times the size of a file of the shortest elements.
constexpr qint64 memoryPerByte = 80;
constexpr qint64 memoryOffset = 16'000'000;

QByteArray entities(const QByteArray &declarations, const QByteArray &content)
{
    return "<!DOCTYPE x [" + declarations + "]>{" + content + "}";
}

/// Returns a chain of entities in which each refers to the one before it ten times.
QByteArray entityChain(int length)
{
    QByteArray declarations = "<!ENTITY e0 \"0123456789\">";
    for (int i = 1; i <= length; ++i) {
        const QByteArray reference = "&e" + QByteArray::number(i - 1) + ";";
        declarations +=
            "<!ENTITY e" + QByteArray::number(i) + " \"" + reference.repeated(10) + "\">";
    }
    return declarations;
}

/// Returns \a text in the encoding \a codec, without a byte order mark of the codec's own.
QByteArray encoded(const char *codec, const QString &text)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName(codec)->fromUnicode(text.constData(), text.size(), &state);
}

} // namespace

/// What the readers make of files that nobody meant to be a theme's.
class BadInputTest : public QObject
{
    Q_OBJECT

private:
    ThemeRepository m_files;

    /// Adds one row for each reader.
    template <typename Value>
    static void addRows(const char *name, const Value &value, int status)
    {
        for (int reader = 0; reader < fileReaders().size(); ++reader) {
            QTest::addRow("%s, %s", name, fileReaders().at(reader).name)
                << reader << value << status;
        }
    }

    template <typename Value>
    static void addColumns(const char *valueName)
    {
        QTest::addColumn<int>("reader");
        QTest::addColumn<Value>(valueName);
        QTest::addColumn<int>("status");
    }

    QString write(const QByteArray &content) const
    {
        return m_files.write(QStringLiteral("file.xml"), content);
    }

    /// Lets the row's reader read the row's content.
    void checkContent() const
    {
        QFETCH(int, reader);
        QFETCH(QByteArray, content);
        QFETCH(int, status);
        const FileReader &fileReader = fileReaders().at(reader);
        const QString path = write(framed(content, fileReader));
        const ProcessorTimer timer;
        QCOMPARE(fileReader.status(path), status);
        QVERIFY2(timer.elapsed() < patience, qPrintable(QString::number(timer.elapsed())));
    }

private Q_SLOTS:
    void whatIsNoFileCannotBeOpened_data()
    {
        addColumns<QString>("path");
        addRows("missing", m_files.path(QStringLiteral("missing.xml")), CannotOpen);
        addRows("empty path", QString(), CannotOpen);
        addRows("directory", m_files.path(), CannotOpen);
        addRows("in no directory", write("{}") + QLatin1String("/file.xml"), CannotOpen);
        addRows("endless device", QStringLiteral("/dev/zero"), CannotOpen);
    }

    void whatIsNoFileCannotBeOpened()
    {
        QFETCH(int, reader);
        QFETCH(QString, path);
        QTEST(fileReaders().at(reader).status(path), "status");
    }

    void unreadableFileCannotBeOpened()
    {
        const QString path = write("<theme/>");
        QVERIFY(QFile::setPermissions(path, QFileDevice::Permissions()));
        if (QFileInfo(path).isReadable()) {
            QSKIP("This user may read every file");
        }
        for (const FileReader &reader : fileReaders()) {
            QCOMPARE(reader.status(path), int(CannotOpen));
        }
    }

    void whatIsNoDocumentIsFaulty_data()
    {
        addColumns<QByteArray>("content");
        addRows("empty", QByteArray(), Faulty);
        addRows("space", QByteArray("  \n"), Faulty);
        addRows("text", QByteArray("Not a document."), Faulty);
        addRows("image", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), Faulty);
        addRows("zero bytes", QByteArray(1000, '\0'), Faulty);
        addRows("byte order mark", QByteArray("\xef\xbb\xbf"), Faulty);
        addRows("half a character", QByteArray("\xff\xfe<"), Faulty);
        addRows("prolog only", QByteArray("<?xml version=\"1.0\"?><!-- -->"), Faulty);
        addRows("truncated in text", QByteArray("{text"), Faulty);
        addRows("truncated in a tag", QByteArray("{<a b"), Faulty);
        addRows("truncated in a value", QByteArray("{<a b='"), Faulty);
        addRows("truncated after an angle", QByteArray("{<"), Faulty);
        addRows("truncated in a comment", QByteArray("{<!-- -"), Faulty);
        addRows("truncated in data", QByteArray("{<![CDATA[ ]]"), Faulty);
        addRows("truncated in an instruction", QByteArray("{<?a ?"), Faulty);
        addRows("truncated in a reference", QByteArray("{&am"), Faulty);
        addRows("truncated in the type", QByteArray("<!DOCTYPE a [<!ENTITY b \"c"), Faulty);
        addRows("mismatch", QByteArray("{<a></b>}"), Faulty);
        addRows("two roots", QByteArray("{}{}"), Faulty);
        addRows("no UTF-8 after all", encoded("UTF-16LE", QStringLiteral("<a/>")).mid(1), Faulty);
        addRows("UTF-16 by mistake", QByteArray("<?xml version='1.0' encoding='UTF-16'?>{}"),
                Faulty);
    }

    void whatIsNoDocumentIsFaulty() { checkContent(); }

    void hostileDocumentIsFaulty_data()
    {
        addColumns<QByteArray>("content");
        const auto add = [](const char *name, const QByteArray &content) {
            addRows(name, content, Faulty);
        };
        constexpr int many = 100'000;
        const QByteArray tags = QByteArray("<a>").repeated(many);
        add("nested elements", "{" + tags + QByteArray("</a>").repeated(many) + "}");
        add("nested elements without an end", "{" + tags);
        add("elements behind a false comment", "<?xml version=\"?><!--\"?>{" + tags);
        add("nested content model", "<!DOCTYPE x [<!ELEMENT x " + QByteArray(many, '(') + "y" +
                                        QByteArray(many, ')') + ">]>{}");
        add("elements nested by an entity",
            entities("<!ENTITY e \"<a>\">", QByteArray("&e;").repeated(many)));
        add("elements nested by characters",
            entities("<!ENTITY e \"&#60;a&#x3e;\">", QByteArray("&e;").repeated(many)));
        add("elements nested in an entity", entities("<!ENTITY e '" + tags + "'>", "&e;"));
        add("growing entities", entities(entityChain(12), "&e12;"));
        add("growing entities in a value", entities(entityChain(12), "<a b=\"&e12;\"/>"));
        add("growing entities in a default",
            entities(entityChain(12) + "<!ATTLIST a b CDATA \"&e12;\">", {}));
        add("one large entity often", entities("<!ENTITY e \"" + QByteArray(50'000, 'x') + "\">",
                                               QByteArray("&e;").repeated(50'000)));
        add("empty entity often",
            entities("<!ENTITY e \"\">", QByteArray("&e;").repeated(1'000'000)));
        add("entity in itself", entities("<!ENTITY e \"&e;\">", "&e;"));
        add("entities in each other",
            entities("<!ENTITY e '&f;'><!ENTITY f '&e;'>", "<a b='&e;'/>"));
        add("many names of growing entities", entities(entityChain(10), "&e9;&e8;&e7;&e10;"));
        add("parameter entities", entities("<!ENTITY % p \"<!ENTITY e 'v'>\">%p;", "&e;"));
        add("two types", "<!DOCTYPE x><!DOCTYPE x [<!ENTITY e \"v\">]>{&e;}");
    }

    void hostileDocumentIsFaulty() { checkContent(); }

    void tooManyEntitiesAreFaulty()
    {
        QByteArray declarations;
        for (int i = 0; i < 50'000; ++i) {
            declarations += "<!ENTITY e" + QByteArray::number(i) + " \"&e1;\">";
        }
        const QString path = write("<!DOCTYPE theme [" + declarations + "]><theme/>");
        const ProcessorTimer timer;
        QCOMPARE(BaseThemeSettings(path).getStatus(), int(Faulty));
        QVERIFY(timer.elapsed() < patience);
    }

    void largeFileTakesItsShareOnly_data()
    {
        addColumns<RepeatedDocument>("document");
        const auto add = [](const char *name, const RepeatedDocument &document, Status status) {
            addRows(name, document, status);
        };
        add("text", {"{", "x", "}"}, Fine);
        add("elements", {"{", "<Color/>", "}"}, Fine);
        add("attributes", {"{<a", " name@=\"value\"", "/>}"}, Fine);
        add("name", {"{<", "n", "/>}"}, Fine);
        add("comment", {"{<!--", "x", "-->}"}, Fine);
        add("comments", {"", "<!-- -->\n", "{}"}, Fine);
        add("instruction", {"{<?x ", "x", "?>}"}, Fine);
        add("data", {"{<![CDATA[", "x", "]]>}"}, Fine);
        add("references to characters", {"{", "&#65;", "}"}, Fine);
        add("declared elements", {"<!DOCTYPE x [", "<!ELEMENT x ANY>", "]>{}"}, Fine);
        add("declared attributes", {"<!DOCTYPE x [", "<!ATTLIST x a@ CDATA 'v'>", "]>{}"}, Fine);
        add("external entities",
            {"<!DOCTYPE x [", "<!ENTITY e@ SYSTEM 'http://localhost/e'>", "]>{}"}, Fine);
        add("entities", {"<!DOCTYPE x [", "<!ENTITY e@ 'v'>", "]>{}"}, Faulty);
        add("references to an entity", {"<!DOCTYPE x [<!ENTITY e 'v'>]>{", "&e;", "}"}, Faulty);
        add("ampersands", {"{", "&", "}"}, Faulty);
        add("angles", {"", "<", ""}, Faulty);
        add("tags", {"", "<a>", ""}, Faulty);
        add("zero bytes", {"", QByteArray(1, '\0'), ""}, Faulty);
        add("space", {"", " ", ""}, Faulty);
        add("garbage", {"", "@\xfe\x80\xc3(\x9d@;\xf8", ""}, Faulty);
    }

    void largeFileTakesItsShareOnly()
    {
        QFETCH(int, reader);
        QFETCH(RepeatedDocument, document);
        const FileReader &fileReader = fileReaders().at(reader);
        const qint64 size = &fileReader == &fileReaders().last() ? largeSize : mediumSize;
        const QString path = m_files.path(QStringLiteral("large.xml"));
        QVERIFY(document.write(path, fileReader, size));

        const ProcessorTimer timer;
        const PeakMemory memory;
        QTEST(fileReader.status(path), "status");
        QVERIFY2(timer.elapsed() < patience, qPrintable(QString::number(timer.elapsed())));
        if (memory.isUsable() && !isSanitized) {
            QVERIFY2(memory.growth() < size * memoryPerByte + memoryOffset,
                     qPrintable(QString::number(memory.growth())));
        }
    }

    void personsDocumentPasses_data()
    {
        addColumns<QByteArray>("content");
        const auto add = [](const char *name, const QByteArray &content) {
            addRows(name, content, Fine);
        };
        add("bare", "{}");
        add("declared", "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone='yes'?>\r\n{}\r\n");
        add("with a byte order mark", "\xef\xbb\xbf<?xml version=\"1.0\"?>{}");
        add("type without declarations", "<!DOCTYPE Config>{}");
        add("external type", "<!DOCTYPE a PUBLIC \"-//[a>//\" 'http://localhost/a.dtd'>{}");
        add("declarations", "<!DOCTYPE a SYSTEM \"a.dtd\" [\n<!-- ]> '\" -->\n<?edit ]> '?>\n"
                            "<!ELEMENT a (#PCDATA|b)*>\n<!ELEMENT b ((c?,d+)|(e,(f|g)*))>\n"
                            "<!ATTLIST a b CDATA \"100% >\" c (d|e) 'd' f ID #IMPLIED>\n"
                            "<!NOTATION n PUBLIC \"%\">\n<!ENTITY x SYSTEM 'x.gif' NDATA n>\n]>{}");
        add("brackets in comments and data",
            "<!-- <a> & -->{<!--<b>--><![CDATA[<c>&]]]]><![CDATA[>]]>}<!-- </d> -->");
        add("brackets in values", R"({<a b='>' c="/>" d='"'/><e f="'>"></e>})");
        add("instructions", "<?style type='a>b'?>{<?a?><?xml-b <c> ?"
                            "?>}<?d ?>");
        add("nested elements",
            "{" + QByteArray("<a>\n").repeated(100) + QByteArray("</a>\n").repeated(100) + "}");
        add("references", "{&lt;a&gt; &amp;&quot;&apos;&#65;&#x42;<a b=\"&lt;&amp;\"/>}");
    }

    void personsDocumentPasses() { checkContent(); }

    void personsEntitiesPass_data()
    {
        addColumns<QByteArray>("content");
        const auto add = [](const char *name, const QByteArray &declarations,
                            const QByteArray &content) {
            addRows(name, entities(declarations, content), Fine);
        };
        QByteArray dozens;
        QByteArray references;
        for (int i = 0; i < 60; ++i) {
            dozens += "<!ENTITY e" + QByteArray::number(i) + " \"Main &#x26; Color&#39;s\">\n";
            references +=
                "<a b='&e" + QByteArray::number(i) + ";'>&e" + QByteArray::number(i) + ";</a>\n";
        }
        add("unused", dozens, {});
        add("plain", "<!ENTITY e \"v\">", "<a b=\"&e;\">a&e;b&e;</a>&e;");
        add("in each other", "<!ENTITY e \"&f; and &f;\"><!ENTITY f 'v'>", "<a b='&e;'>&e;</a>");
        add("with elements", "<!ENTITY e \"<b c='d'>&f;</b><b/>\"><!ENTITY f 'v'>",
            "<a>&e;</a><a>&e;</a>");
        add("declared twice", "<!ENTITY e 'v'><!ENTITY e 'w'>", "&e;");
        add("in a default", "<!ENTITY e 'v'><!ATTLIST a b CDATA '&e;&#38;'>", "<a/>");
        add("not as references", "<!ENTITY e '<a>'>", "<!-- &e; --><![CDATA[&e;]]><?a &e;?>");
        add("not declared", "<!ENTITY e 'v'>", "&f;<a b='&f;'/>");
        add("many times", "<!ENTITY e 'MainColor'>",
            QByteArray("<a b='&e;'>&e;</a>\n").repeated(10'000));
        dozens.replace("&#x26;", "and");
        add("dozens", dozens, references.repeated(50));
    }

    void personsEntitiesPass() { checkContent(); }

    void nameIsDecoded_data()
    {
        QTest::addColumn<QByteArray>("content");
        const auto document = [](const char *declaration) {
            return QLatin1String(declaration) +
                   QString::fromUtf8("<theme><name>Gr\u00fcn</name></theme>");
        };
        const char *const plain = "<?xml version=\"1.0\"?>\n";
        const char *const latin = "<?xml version='1.0' encoding='ISO-8859-1'?>\n";
        const QChar byteOrderMark(QChar::ByteOrderMark);
        QTest::newRow("UTF-8") << document("").toUtf8();
        QTest::newRow("UTF-8, marked") << "\xef\xbb\xbf" + document(plain).toUtf8();
        QTest::newRow("UTF-8, declared")
            << document("<?xml version='1.0' encoding='utf-8'?>").toUtf8();
        QTest::newRow("Latin 1") << document(latin).toLatin1();
        QTest::newRow("Latin 1, declared behind many blanks")
            << document(latin)
                   .replace(QLatin1String(" encoding"),
                            QString(300, QLatin1Char(' ')) + QLatin1String("encoding"))
                   .toLatin1();
        QTest::newRow("UTF-16, little end, marked")
            << encoded("UTF-16LE", byteOrderMark + document(plain));
        QTest::newRow("UTF-16, big end, marked")
            << encoded("UTF-16BE", byteOrderMark + document(plain));
        QTest::newRow("UTF-16, little end") << encoded("UTF-16LE", document(plain));
        QTest::newRow("UTF-16, big end") << encoded("UTF-16BE", document(plain));
    }

    void nameIsDecoded()
    {
        QFETCH(QByteArray, content);
        const BaseThemeSettings settings(write(content));
        QCOMPARE(settings.getStatus(), int(Fine));
        QCOMPARE(settings.getName(), QString::fromUtf8("Gr\u00fcn"));
    }

    void truncatedFileKeepsItsName()
    {
        const BaseThemeSettings settings(write("<theme><name>Dark</name><author>Som"));
        QCOMPARE(settings.getStatus(), int(Faulty));
        QCOMPARE(settings.getName(), QStringLiteral("Dark"));
    }

    void hostileFileHasNoName()
    {
        const QByteArray nested = QByteArray("<a>").repeated(100'000);
        const BaseThemeSettings settings(write("<theme><name>Dark</name>" + nested));
        QCOMPARE(settings.getStatus(), int(Faulty));
        QCOMPARE(settings.getName(), QString());
    }

    void otherFilesAreNotRead()
    {
        const QString other = m_files.write(QStringLiteral("other.txt"), "content");
        const BaseThemeSettings settings(write("<!DOCTYPE theme [<!ENTITY other SYSTEM \"" +
                                               other.toUtf8() +
                                               "\">]><theme><name>Dark&other;</name></theme>"));
        QCOMPARE(settings.getName(), QStringLiteral("Dark"));
    }
};

QTEST_MAIN(BadInputTest)

#include "BadInputTest.moc"
