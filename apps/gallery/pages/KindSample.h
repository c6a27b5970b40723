#pragma once

#include <QtWidgets/QWidget>

namespace TARN::Gallery {

/// Shows how a button or an input of some kind looks in one state, whatever state it is in itself.
/// Called as the brush of its face is.
class KindSample : public QWidget
{
public:
    /// \a stem is what the names of the brushes begin with, say "ButtonPrimaryCheckedHover";
    /// \a twin what they end with, "Disabled" or nothing.
    KindSample(const QString &stem, const QString &twin, Qt::Alignment textAlignment);

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString brushName(QLatin1String field) const;

    QString m_stem;
    QString m_twin;
    Qt::Alignment m_textAlignment;
};

} // namespace TARN::Gallery
