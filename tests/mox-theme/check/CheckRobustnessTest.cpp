#include <QtCore/QDir>
#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

#include <mox-theme/support/SoundTheme.h>
#include <support/MessageRecorder.h>
#include <support/ProcessorTimer.h>
#include <text/Literals.h>

using namespace TARN::ThemeTool;

namespace {

/// Returns \a content with some bytes changed, left out or repeated.
QByteArray mutated(QByteArray content, QRandomGenerator &random)
{
    constexpr int mostMutations = 4;
    constexpr int longestPiece = 40;
    for (int i = random.bounded(mostMutations) + 1; i > 0 && !content.isEmpty(); --i) {
        const int position = random.bounded(content.size());
        const int length = random.bounded(longestPiece);
        switch (random.bounded(4)) {
        case 0:
            content[position] = static_cast<char>(random.bounded(256));
            break;
        case 1:
            content.remove(position, length);
            break;
        case 2:
            content.insert(random.bounded(content.size()), content.mid(position, length));
            break;
        default:
            content.truncate(position);
            break;
        }
    }
    return content;
}

} // namespace

/// The checker holds out against any files, and is fast with large ones.
class CheckRobustnessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyBytesAreChecked_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("times");
        QTest::newRow("description") << "theme.xml" << 40;
        QTest::newRow("configuration") << "config.xml" << 40;
        QTest::newRow("palette") << "qpaletteMapping.xml" << 40;
        QTest::newRow("index") << "Images/Sound/index.theme" << 40;
        QTest::newRow("icon") << "Images/Sound/scalable/dot.svg" << 40;
        QTest::newRow("cursor") << "Images/Sound/Cursors/pick.cur" << 40;
        QTest::newRow("stylesheet") << "own.qss" << 40;
    }

    void anyBytesAreChecked()
    {
        QFETCH(QString, file);
        QFETCH(int, times);
        const MessageRecorder unread;
        const SoundTheme theme;
        theme.write("own.qss"_s, "* { color: @colors/MainColor@; }");
        const QByteArray sound = theme.content(file);
        QRandomGenerator random(20230513);
        for (int i = 0; i < times; ++i) {
            theme.write(file, mutated(sound, random));
            for (const Finding &finding : theme.check()) {
                QVERIFY(finding.file.startsWith(theme.directory()));
                QVERIFY(!finding.text.isEmpty() && !finding.text.contains(u'\n'));
                QVERIFY(finding.line >= 0 && finding.column >= 0);
            }
        }
    }

    void foldersInPlaceOfFilesAreChecked()
    {
        const SoundTheme theme;
        for (const QString &file : {"theme.xml"_s, "config.xml"_s, "qpaletteMapping.xml"_s}) {
            theme.remove(file);
            QVERIFY(QDir().mkpath(theme.path(file)));
        }
        QCOMPARE(theme.check().size(), 3);
        QVERIFY(theme.check().first().text.contains("cannot be opened"_s));
    }

    /// Two thousand entries, and far more than the theme is asked for in the second row, where
    /// every name is a misspelling.
    void twoThousandEntriesAreCheckedAtOnce_data()
    {
        QTest::addColumn<bool>("areMisspelt");
        QTest::newRow("sound") << false;
        QTest::newRow("misspelt") << true;
    }

    void twoThousandEntriesAreCheckedAtOnce()
    {
        constexpr qint64 patience = 500;
        QFETCH(bool, areMisspelt);
        const SoundTheme theme;
        QByteArray content = theme.content("config.xml"_s);
        QVERIFY(content.count(" name=") >= 1500);
        QByteArray colors;
        for (int i = content.count(" name="); i < 2000; ++i) {
            colors += "<Color name=\"Series" + QByteArray::number(i) + "Color\">#123456</Color>\n";
        }
        content.replace("</ColorsList>", colors + "</ColorsList>");
        if (areMisspelt) {
            content.replace("Foreground", "Foregruond");
        }
        theme.write("config.xml"_s, content);
        theme.check(); // what the process keeps is made by the first one
        qint64 best = patience;
        for (int i = 0; i < 3; ++i) {
            const ProcessorTimer timer;
            QVERIFY(!theme.check().isEmpty());
            best = qMin(best, timer.elapsed());
        }
        qInfo("%lld ms", best);
        QVERIFY(best < patience);
    }
};

QTEST_MAIN(CheckRobustnessTest)
#include "CheckRobustnessTest.moc"
