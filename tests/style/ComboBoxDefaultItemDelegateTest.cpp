#include <style/BaseStyle.h>
#include <style/ComboBoxDefaultItemDelegate.h>

#include <QtCore/QStringListModel>
#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QProxyStyle>

#include <support/Text.h>

using TARN::ComboBoxDefaultItemDelegate;

namespace {

/// Notes what it is asked to paint, and has a frame width of its own.
class RecordingStyle : public QProxyStyle
{
public:
    struct Primitive
    {
        PrimitiveElement element;
        int version;
        int type;
        QRect rect;
        const QWidget *widget;
    };

    RecordingStyle()
        : QProxyStyle(text("fusion"))
    {
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        primitives.append({element, option->version, option->type, option->rect, widget});
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        if (metric == PM_DefaultFrameWidth) {
            frameWidthAsker = widget;
            return frameWidth;
        }
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

    static constexpr int frameWidth = 13;
    mutable QVector<Primitive> primitives;
    mutable const QWidget *frameWidthAsker = nullptr;
};

/// Returns a model of three entries, with \a description for the middle one.
void fill(QStandardItemModel &model, const QString &description)
{
    for (const char *name : {"First", "Middle", "Last"}) {
        model.appendRow(new QStandardItem(text(name)));
    }
    model.item(1)->setData(description, Qt::AccessibleDescriptionRole);
}

QImage painted(const QAbstractItemDelegate &delegate, const QStyleOptionViewItem &option,
               const QModelIndex &index)
{
    QImage image(200, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    delegate.paint(&painter, option, index);
    return image;
}

} // namespace

/// The delegate of combo boxes: separators and ordinary entries.
class ComboBoxDefaultItemDelegateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject()
    {
        QComboBox combo;
        const ComboBoxDefaultItemDelegate delegate(nullptr, &combo);
        const QMetaObject *meta = delegate.metaObject();
        QCOMPARE(meta->className(), "TARN::ComboBoxDefaultItemDelegate");
        QCOMPARE(meta->superClass(), &QStyledItemDelegate::staticMetaObject);
        QCOMPARE(meta->propertyCount(), meta->propertyOffset());
        QCOMPARE(meta->methodCount(), meta->methodOffset());
    }

    void parentOwns()
    {
        QPointer<ComboBoxDefaultItemDelegate> delegate;
        QComboBox combo;
        {
            QObject parent;
            delegate = new ComboBoxDefaultItemDelegate(&parent, &combo);
            QCOMPARE(delegate->parent(), &parent);
            QCOMPARE(delegate->comboBox(), &combo);
        }
        QVERIFY(delegate.isNull());
    }

    void separators_data()
    {
        QTest::addColumn<QVariant>("description");
        QTest::addColumn<bool>("expected");
        QTest::newRow("mark") << QVariant(text("separator")) << true;
        QTest::newRow("bytes") << QVariant(QByteArray("separator")) << true;
        QTest::newRow("other case") << QVariant(text("Separator")) << false;
        QTest::newRow("longer") << QVariant(text("separator ")) << false;
        QTest::newRow("empty") << QVariant(QString()) << false;
        QTest::newRow("none") << QVariant() << false;
    }

    void separators()
    {
        QFETCH(QVariant, description);
        QFETCH(bool, expected);
        QStandardItemModel model;
        model.appendRow(new QStandardItem(text("separator")));
        model.item(0)->setData(description, Qt::AccessibleDescriptionRole);
        QCOMPARE(ComboBoxDefaultItemDelegate::isSeparator(model.index(0, 0)), expected);
    }

    void noModelIsNoSeparator()
    {
        QVERIFY(!ComboBoxDefaultItemDelegate::isSeparator(QModelIndex()));
    }

    void setSeparatorInAStandardModel()
    {
        QStandardItemModel model;
        fill(model, QString());
        model.item(1)->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable |
                                Qt::ItemIsDragEnabled);
        ComboBoxDefaultItemDelegate::setSeparator(&model, model.index(1, 0));
        QCOMPARE(model.index(1, 0).data(Qt::AccessibleDescriptionRole), text("separator"));
        QVERIFY(ComboBoxDefaultItemDelegate::isSeparator(model.index(1, 0)));
        QCOMPARE(model.item(1)->flags(), Qt::ItemIsEditable | Qt::ItemIsDragEnabled);
        QVERIFY(model.item(0)->isSelectable() && model.item(0)->isEnabled());
        QVERIFY(!ComboBoxDefaultItemDelegate::isSeparator(model.index(0, 0)));
    }

    void setSeparatorInAComboBox()
    {
        QComboBox combo;
        combo.addItems({text("First"), text("Middle"), text("Last")});
        const QModelIndex middle = combo.model()->index(1, 0);
        ComboBoxDefaultItemDelegate::setSeparator(combo.model(), middle);
        QTest::keyClick(&combo, Qt::Key_Down);
        QCOMPARE(combo.currentIndex(), 2);
    }

    // A model of strings knows no descriptions: it takes none, and the entry keeps its flags.
    void setSeparatorInAnotherModel()
    {
        QStringListModel model({text("First"), text("Middle")});
        const Qt::ItemFlags before = model.flags(model.index(1));
        ComboBoxDefaultItemDelegate::setSeparator(&model, model.index(1));
        QCOMPARE(model.flags(model.index(1)), before);
        QCOMPARE(model.stringList(), QStringList({text("First"), text("Middle")}));
    }

    void setSeparatorThroughAProxyModel()
    {
        QStandardItemModel source;
        fill(source, QString());
        QSortFilterProxyModel proxy;
        proxy.setSourceModel(&source);
        ComboBoxDefaultItemDelegate::setSeparator(&proxy, proxy.index(1, 0));
        QVERIFY(ComboBoxDefaultItemDelegate::isSeparator(proxy.index(1, 0)));
        QVERIFY(proxy.flags(proxy.index(1, 0)).testFlag(Qt::ItemIsEnabled));
    }

    void setSeparatorOfNoIndex()
    {
        QStandardItemModel model;
        fill(model, QString());
        ComboBoxDefaultItemDelegate::setSeparator(&model, QModelIndex());
        for (int row = 0; row < model.rowCount(); ++row) {
            QVERIFY(!ComboBoxDefaultItemDelegate::isSeparator(model.index(row, 0)));
            QVERIFY(model.item(row)->isEnabled());
        }
    }

    void ordinaryEntries()
    {
        RecordingStyle style;
        QComboBox combo;
        combo.setStyle(&style);
        const ComboBoxDefaultItemDelegate delegate(nullptr, &combo);
        const QStyledItemDelegate plain;
        QStandardItemModel model;
        fill(model, text("Separator"));
        QStyleOptionViewItem option;
        option.rect = QRect(10, 20, 80, 30);
        option.state = QStyle::State_Enabled;
        const QImage picture = painted(delegate, option, model.index(1, 0));
        QVERIFY(picture != painted(delegate, option, model.index(0, 0)));
        QCOMPARE(picture, painted(plain, option, model.index(1, 0)));
        QCOMPARE(delegate.sizeHint(option, model.index(1, 0)),
                 plain.sizeHint(option, model.index(1, 0)));
        QVERIFY(style.primitives.isEmpty());
    }

    void separatorGoesAcrossTheList_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::newRow("narrower") << QRect(10, 20, 80, 3);
        QTest::newRow("wider than the list") << QRect(-40, 5, 900, 7);
    }

    void separatorGoesAcrossTheList()
    {
        QFETCH(QRect, rect);
        RecordingStyle style;
        QComboBox combo;
        combo.setStyle(&style);
        const ComboBoxDefaultItemDelegate delegate(nullptr, &combo);
        QStandardItemModel model;
        fill(model, text("separator"));
        QListView view;
        view.resize(150, 100);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        view.ensurePolished();
        QCoreApplication::sendPostedEvents();
        view.grab();
        QVERIFY(view.viewport()->width() < view.width());
        QStyleOptionViewItem option;
        option.rect = rect;
        option.widget = &view;
        option.state = QStyle::State_Selected;
        style.primitives.clear();
        painted(delegate, option, model.index(1, 0));
        QCOMPARE(style.primitives.size(), 1);
        const RecordingStyle::Primitive line = style.primitives[0];
        QCOMPARE(line.element, QStyle::PE_IndicatorToolBarSeparator);
        QCOMPARE(line.version, 1);
        QCOMPARE(line.type, int(QStyleOption::SO_Default));
        QCOMPARE(line.rect, QRect(rect.x(), rect.y(), view.viewport()->width(), rect.height()));
        QCOMPARE(line.widget, &combo);
    }

    void separatorElsewhereKeepsItsRectangle()
    {
        RecordingStyle style;
        QComboBox combo;
        combo.setStyle(&style);
        const ComboBoxDefaultItemDelegate delegate(nullptr, &combo);
        QStandardItemModel model;
        fill(model, text("separator"));
        QStyleOptionViewItem option;
        option.rect = QRect(10, 20, 80, 3);
        const QWidget widget;
        for (const QWidget *noView : {static_cast<const QWidget *>(nullptr), &widget}) {
            option.widget = noView;
            style.primitives.clear();
            painted(delegate, option, model.index(1, 0));
            QCOMPARE(style.primitives.size(), 1);
            QCOMPARE(style.primitives[0].rect, option.rect);
        }
    }

    void separatorIsAsHighAsAFrame()
    {
        RecordingStyle style;
        QComboBox combo;
        combo.setStyle(&style);
        const ComboBoxDefaultItemDelegate delegate(nullptr, &combo);
        QStandardItemModel model;
        fill(model, text("separator"));
        const QSize hint = delegate.sizeHint(QStyleOptionViewItem(), model.index(1, 0));
        QCOMPARE(hint, QSize(RecordingStyle::frameWidth, RecordingStyle::frameWidth));
        QCOMPARE(style.frameWidthAsker, &combo);
        QVERIFY(delegate.sizeHint(QStyleOptionViewItem(), model.index(0, 0)) != hint);
    }

    // A delegate lives as long as its style, and may outlive its combo box.
    void outlivesItsComboBox()
    {
        QScopedPointer<QComboBox> combo(new QComboBox);
        const ComboBoxDefaultItemDelegate delegate(nullptr, combo.data());
        QStandardItemModel model;
        fill(model, text("separator"));
        QStyleOptionViewItem option;
        option.rect = QRect(10, 20, 80, 30);
        combo.reset();
        QCOMPARE(delegate.comboBox(), nullptr);
        QVERIFY(delegate.sizeHint(option, model.index(1, 0)).isValid());
        const QStyledItemDelegate plain;
        QCOMPARE(painted(delegate, option, model.index(0, 0)),
                 painted(plain, option, model.index(0, 0)));
        painted(delegate, option, model.index(1, 0));
    }

    void inAPopUp()
    {
        TARN::BaseStyle style;
        QComboBox combo;
        combo.setStyle(&style);
        combo.addItems({text("First"), text("Middle"), text("Last")});
        combo.ensurePolished();
        const QModelIndex middle = combo.model()->index(1, 0);
        ComboBoxDefaultItemDelegate::setSeparator(combo.model(), middle);
        combo.show();
        combo.showPopup();
        QAbstractItemView *view = combo.view();
        const int frameWidth = style.pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, &combo);
        QCOMPARE(view->visualRect(middle).height(), frameWidth);
        QVERIFY(view->visualRect(combo.model()->index(0, 0)).height() > frameWidth);
        QTest::keyClick(view, Qt::Key_Down);
        QCOMPARE(view->currentIndex().row(), 2);
        combo.hidePopup();
    }
};

QTEST_MAIN(ComboBoxDefaultItemDelegateTest)
#include "ComboBoxDefaultItemDelegateTest.moc"
