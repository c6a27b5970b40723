#include "OpenWidgets.h"

#include "FreshRendering.h"

#include <theme/BaseTheme.h>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QGraphicsTextItem>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include <support/Text.h>

namespace {

QString directory(const QString &name)
{
    return text(MOX_SHIPPED_THEMES) + QLatin1Char('/') + name;
}

void apply(const char *name)
{
    TARN::BaseTheme(directory(text(name))).customize(qApp);
}

/// Counts what a window in use tells of its values and states.
class Signals
{
public:
    explicit Signals(OpenWidgets &widgets)
        : m_fontChanges(&widgets.fonts(), &QFontComboBox::currentFontChanged)
        , m_indexChanges(&widgets.fonts(), QOverload<int>::of(&QComboBox::currentIndexChanged))
        , m_textChanges(&widgets.fonts(), &QComboBox::currentTextChanged)
        , m_shown(&widgets.menu(), &QMenu::aboutToShow)
        , m_hidden(&widgets.menu(), &QMenu::aboutToHide)
        , m_hovered(&widgets.menuBar(), &QMenuBar::hovered)
        , m_activated(&widgets.subWindows(), &QMdiArea::subWindowActivated)
    {
    }

    int count() const
    {
        int count = 0;
        for (const QSignalSpy *spy : {&m_fontChanges, &m_indexChanges, &m_textChanges, &m_shown,
                                      &m_hidden, &m_hovered, &m_activated}) {
            count += spy->count();
        }
        return count;
    }

private:
    QSignalSpy m_fontChanges;
    QSignalSpy m_indexChanges;
    QSignalSpy m_textChanges;
    QSignalSpy m_shown;
    QSignalSpy m_hidden;
    QSignalSpy m_hovered;
    QSignalSpy m_activated;
};

} // namespace

/// Clean switches while an application is in use.
class OpenWidgetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qRegisterMetaType<QMdiSubWindow *>();
        qApp->setProperty(MOX_SWITCH_PROPERTY, true);
    }

    void nothingChangesButTheLooks()
    {
        const char *const themes[] = {"Dark", "Light", "HighContrast"};
        QVector<QImage> fresh;
        for (const char *name : themes) {
            fresh.append(freshRendering(text("open"), directory(text(name))));
        }
        QVERIFY(fresh[0] != fresh[1]);
        apply("Light");
        OpenWidgets widgets;
        widgets.render();
        const QString font = widgets.fonts().currentText();
        const Signals signalsSent(widgets);
        for (int i = 0; i < 30; ++i) {
            apply(themes[i % 3]);
            QVERIFY2(areEqual(widgets.render(), fresh[i % 3], text("open-%1").arg(i)),
                     themes[i % 3]);
            QCOMPARE(signalsSent.count(), 0);
        }
        QCOMPARE(widgets.fonts().currentText(), font);
        QVERIFY(widgets.menu().isVisible());
    }

    /// The menu can be left as if nothing had happened.
    void anOpenMenuIsThatOfItsEntry()
    {
        apply("Dark");
        OpenWidgets widgets;
        QAction *entry = widgets.menu().menuAction();
        QCOMPARE(widgets.menuBar().activeAction(), entry);
        apply("Light");
        QCOMPARE(widgets.menuBar().activeAction(), entry);
        QTest::keyClick(&widgets.menu(), Qt::Key_Escape);
        QVERIFY(!widgets.menu().isVisible());
        QTest::keyClick(&widgets.menuBar(), Qt::Key_Escape);
        QVERIFY(!widgets.menuBar().activeAction());
        apply("Dark");
        QVERIFY(!widgets.menuBar().activeAction());
        QVERIFY(!widgets.menu().isVisible());
    }

    void aSubmenuStaysOpen()
    {
        apply("Dark");
        OpenWidgets widgets;
        QAction *more = widgets.menu().actions().last();
        QVERIFY(more->menu());
        widgets.menu().setActiveAction(more);
        QTRY_VERIFY(more->menu()->isVisible());
        more->menu()->setActiveAction(more->menu()->actions().first());
        apply("Light");
        QCOMPARE(widgets.menu().activeAction(), more);
        QVERIFY(more->menu()->isVisible());
        QCOMPARE(more->menu()->activeAction(), more->menu()->actions().first());
    }

    void timersOfASubWindowRunOn()
    {
        class Window : public QMdiSubWindow
        {
        public:
            QSet<int> fired;

        protected:
            void timerEvent(QTimerEvent *event) override
            {
                fired.insert(event->timerId());
                QMdiSubWindow::timerEvent(event);
            }
        };
        apply("Dark");
        QMdiArea area;
        Window window;
        area.addSubWindow(&window);
        area.show();
        const int timer = window.startTimer(3600000);
        apply("Light");
        QVERIFY(!window.fired.contains(timer));
    }

    void textsOfAScene()
    {
        apply("Dark");
        QGraphicsScene scene;
        QGraphicsView view(&scene);
        QGraphicsTextItem *plain = scene.addText(text("Plain"));
        QGraphicsTextItem *own = scene.addText(text("Own"));
        own->setDefaultTextColor(QColor(1, 2, 3));
        own->setFont(QFont(text("DejaVu Sans"), 17));
        QGraphicsTextItem *edited = scene.addText(QString());
        edited->setHtml(text("<a href='x'>link</a>"));
        QTextCursor(edited->document()).insertText(text("typed"));
        QVERIFY(edited->document()->isUndoAvailable());
        apply("HighContrast");
        QCOMPARE(plain->defaultTextColor(), QApplication::palette().color(QPalette::Text));
        QCOMPARE(plain->font(), QApplication::font());
        QCOMPARE(own->defaultTextColor(), QColor(1, 2, 3));
        QCOMPARE(own->font(), QFont(text("DejaVu Sans"), 17));
        QVERIFY(edited->document()->isUndoAvailable());
        edited->document()->undo();
        QCOMPARE(edited->toPlainText(), text("link"));
    }
};

QTEST_MAIN(OpenWidgetsTest)
#include "OpenWidgetsTest.moc"
