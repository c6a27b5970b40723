#include "ShownTexts.h"

#include "ButtonTexts.h"
#include "TextRecorder.h"

#include <QtCore/QtMath>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include <support/Text.h>

namespace {

// What the toolkit leaves around the text of a line edit.
constexpr int LineEditMargins = 2 * 2;
constexpr int CursorWidth = 1;

bool isRich(const QLabel &label)
{
    return label.textFormat() == Qt::RichText ||
           (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
}

/// Tells whether a label shows its text as a document, as it does for text that can be selected.
bool showsDocument(const QLabel &label)
{
    return isRich(label) || (label.textInteractionFlags() & Qt::TextSelectableByMouse);
}

QSize labelRoom(const QLabel &label)
{
    const int margin = label.margin();
    QSize room = label.contentsRect().marginsRemoved({margin, margin, margin, margin}).size();
    int indent = label.indent();
    if (indent < 0) {
        const int automatic = label.fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2;
        indent = label.frameWidth() > 0 ? automatic - margin : 0;
    }
    if (indent > 0 && !(label.alignment() & Qt::AlignHCenter)) {
        room.rwidth() -= indent;
    }
    return room;
}

QSize documentSize(const QLabel &label, int width)
{
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(label.font());
    if (isRich(label)) {
        document.setHtml(label.text());
    } else {
        document.setPlainText(label.text());
    }
    document.setTextWidth(label.wordWrap() ? width : -1);
    const qreal height = document.size().height();
    // The document's ideal width is that of unbroken lines.
    qreal widest = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            widest = qMax(widest, block.layout()->lineAt(i).naturalTextWidth());
        }
    }
    return {qCeil(widest), qCeil(height)};
}

void recordLabel(const QLabel &label, TextRecorder &recorder)
{
    const QSize room = labelRoom(label);
    if (showsDocument(label)) {
        recorder.add("rich label", label.text(), documentSize(label, room.width()), room);
    } else if (label.wordWrap()) {
        recorder.add("wrapped label", label.text(),
                     wrappedSizeOf(label.text(), label.fontMetrics(), room.width()), room);
    } else {
        recorder.addLine("label", label.text(), room);
    }
}

/// Tells whether a tab bar is meant to elide. The tabs of docks are as wide as the docks.
bool elidesOnPurpose(const QTabBar &tabBar)
{
    return qobject_cast<const QMainWindow *>(tabBar.parentWidget()) ||
           (!tabBar.usesScrollButtons() && tabBar.elideMode() != Qt::ElideNone);
}

bool isVertical(QTabBar::Shape shape)
{
    return shape == QTabBar::RoundedWest || shape == QTabBar::RoundedEast ||
           shape == QTabBar::TriangularWest || shape == QTabBar::TriangularEast;
}

/// Tells whether the style gives the tabs of a bar one height whatever their font is. Lines of the
/// largest fonts are higher, so there it is the letters that have to fit.
bool hasFixedHeight(const QTabBar &tabBar)
{
    return qobject_cast<const QTabWidget *>(tabBar.parentWidget());
}

void recordTabs(const QTabBar &tabBar, TextRecorder &recorder)
{
    for (int i = 0; i < tabBar.count() && !elidesOnPurpose(tabBar); ++i) {
        const auto option = optionOf<QStyleOptionTab>(tabBar, i);
        // The text of a tab at a side is turned, and its rectangle with it.
        const QRect tab = isVertical(option.shape)
                              ? QRect(QPoint(), option.rect.size().transposed())
                              : option.rect;
        const QRect room =
            tabBar.style()->subElementRect(QStyle::SE_TabBarTabText, &option, &tabBar) & tab;
        QSize needed = sizeOf(tabBar.tabText(i), tabBar.fontMetrics());
        if (hasFixedHeight(tabBar)) {
            needed.setHeight(tabBar.fontMetrics().tightBoundingRect(tabBar.tabText(i)).height());
        }
        recorder.add("tab", tabBar.tabText(i), needed, room.size());
    }
}

void recordMenu(const QMenu &menu, TextRecorder &recorder)
{
    for (const QAction *action : menu.actions()) {
        const QRect rect = menu.actionGeometry(const_cast<QAction *>(action));
        const auto option = optionOf<QStyleOptionMenuItem>(menu, action);
        const QString text = option.text.section(QLatin1Char('\t'), 0, 0);
        const QString shortcut = option.text.section(QLatin1Char('\t'), 1);
        recorder.addLine("menu item", text,
                         rect.size() - QSize(option.maxIconWidth + option.tabWidth, 0));
        const QFontMetrics metrics = menu.fontMetrics();
        recorder.add("shortcut", shortcut, {metrics.horizontalAdvance(shortcut), metrics.height()},
                     {option.tabWidth, rect.height()});
    }
}

void recordMenuBar(const QMenuBar &menuBar, TextRecorder &recorder)
{
    for (QAction *action : menuBar.actions()) {
        recorder.addLine("menu bar item", action->text(), menuBar.actionGeometry(action).size());
    }
}

void recordGroupBox(const QGroupBox &box, TextRecorder &recorder)
{
    const auto option = optionOf<QStyleOptionGroupBox>(box);
    recorder.addLine("group box", box.title(),
                     roomFor(QStyle::CC_GroupBox, QStyle::SC_GroupBoxLabel, option, box));
}

QStyleOptionHeader headerOption(const QHeaderView &header, int section)
{
    auto option = optionOf<QStyleOptionHeader>(header);
    const auto data = [&](int role) {
        return header.model()->headerData(section, header.orientation(), role);
    };
    option.section = section;
    option.text = data(Qt::DisplayRole).toString();
    option.icon = data(Qt::DecorationRole).value<QIcon>();
    const int extent = header.sectionSize(section);
    option.rect = header.orientation() == Qt::Horizontal
                      ? QRect(0, 0, extent, header.viewport()->height())
                      : QRect(0, 0, header.viewport()->width(), extent);
    if (header.isSortIndicatorShown() && header.sortIndicatorSection() == section) {
        option.sortIndicator = QStyleOptionHeader::SortDown;
    }
    return option;
}

void recordHeader(const QHeaderView &header, TextRecorder &recorder)
{
    for (int section = 0; section < header.count(); ++section) {
        const QStyleOptionHeader option = headerOption(header, section);
        QSize room =
            header.style()->subElementRect(QStyle::SE_HeaderLabel, &option, &header).size();
        const int icon = metricOf(QStyle::PM_SmallIconSize, option, header);
        room.rwidth() -= iconWidth(option.icon, QSize(icon, icon));
        // The section of the current item is bold.
        const QFont font = header.highlightSections() ? boldened(header.font()) : header.font();
        if (!header.isSectionHidden(section)) {
            recorder.add("header", option.text, sizeOf(option.text, QFontMetrics(font, &header)),
                         room);
        }
    }
}

void recordEditField(const char *kind, const QLineEdit &edit, TextRecorder &recorder)
{
    const auto option = optionOf<QStyleOptionFrame>(edit);
    QSize room = roomFor(QStyle::SE_LineEditContents, option, edit);
    const QMargins margins = edit.textMargins();
    room.rwidth() -= margins.left() + margins.right() + LineEditMargins;
    const QFontMetrics metrics = edit.fontMetrics();
    recorder.add(kind, edit.text(),
                 {metrics.horizontalAdvance(edit.text()) + CursorWidth, metrics.height()}, room);
}

void recordComboBox(const QComboBox &box, TextRecorder &recorder)
{
    // A file dialog elides the path of its folder.
    if (box.objectName() == text("lookInCombo")) {
        return;
    }
    if (box.isEditable()) {
        recordEditField("combo box", *box.lineEdit(), recorder);
        return;
    }
    const auto option = optionOf<QStyleOptionComboBox>(box);
    QSize room = roomFor(QStyle::CC_ComboBox, QStyle::SC_ComboBoxEditField, option, box);
    // The label is painted a pixel inside the field on either side.
    room.rwidth() -= 2 + iconWidth(option.currentIcon, option.iconSize);
    recorder.addLine("combo box", box.currentText(), room);
}

void recordSpinBox(const QAbstractSpinBox &box, TextRecorder &recorder)
{
    recordEditField("spin box", *box.findChild<QLineEdit *>(), recorder);
}

void record(const QWidget &widget, QVector<ShownText> &texts)
{
    TextRecorder recorder(widget, texts);
    recordAs(widget, recorder, recordLabel) || recordAs(widget, recorder, recordButton) ||
        recordAs(widget, recorder, recordTabs) || recordAs(widget, recorder, recordMenu) ||
        recordAs(widget, recorder, recordMenuBar) || recordAs(widget, recorder, recordGroupBox) ||
        recordAs(widget, recorder, recordHeader) || recordAs(widget, recorder, recordComboBox) ||
        recordAs(widget, recorder, recordSpinBox);
}

QString sizeText(const QSize &size)
{
    return text("%1x%2").arg(size.width()).arg(size.height());
}

} // namespace

QString ShownText::description() const
{
    return ::text("%1 \"%2\" needs %3 and has %4")
        .arg(::text(kind), text, sizeText(needed), sizeText(room));
}

QVector<ShownText> shownTexts(const QWidget &widget)
{
    QVector<ShownText> texts;
    record(widget, texts);
    for (const QWidget *child : widget.findChildren<QWidget *>()) {
        if (child->isVisibleTo(&widget)) {
            record(*child, texts);
        }
    }
    return texts;
}
