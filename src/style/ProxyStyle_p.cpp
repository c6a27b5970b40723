#include "style/ProxyStyle_p.h"

#include <QtCore/QSize>
#include <QtWidgets/QStyleOption>

namespace TARN::ProxyStyle_p {

namespace {

/// Appends the bytes of \a value, the lowest first, each as two digits, the low nibble first.
template <typename Unsigned>
void appendHex(QString &text, Unsigned value)
{
    constexpr char digits[] = "0123456789abcdef";
    constexpr int nibbles = 2 * sizeof(Unsigned);
    for (int i = 0; i < nibbles; ++i) {
        text.append(QLatin1Char(digits[value & 0xfU]));
        value >>= 4U;
    }
}

void appendSpinBox(QString &text, const QStyleOptionSpinBox &spinBox)
{
    appendHex(text, static_cast<quint32>(spinBox.buttonSymbols));
    appendHex(text, static_cast<quint32>(spinBox.stepEnabled));
    text.append(QLatin1Char(spinBox.frame ? '1' : '0'));
}

} // namespace

QString uniqueName(const QString &key, const QStyleOption *opt, const QSize &size)
{
    const auto *complex = qstyleoption_cast<const QStyleOptionComplex *>(opt);
    QString name = key;
    appendHex(name, static_cast<quint32>(opt->state));
    appendHex(name, static_cast<quint32>(opt->direction));
    appendHex(name, complex ? static_cast<quint32>(complex->activeSubControls) : 0U);
    appendHex(name, static_cast<quint64>(opt->palette.cacheKey()));
    appendHex(name, static_cast<quint32>(size.width()));
    appendHex(name, static_cast<quint32>(size.height()));
    if (const auto *spinBox = qstyleoption_cast<const QStyleOptionSpinBox *>(opt)) {
        appendSpinBox(name, *spinBox);
    }
    return name;
}

bool isInstanceOf(QObject *obj, QAccessible::Role role)
{
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(obj);
    return interface && interface->role() == role;
}

} // namespace TARN::ProxyStyle_p
