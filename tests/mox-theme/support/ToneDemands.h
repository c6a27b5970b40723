#pragma once

#include <color/Tones.h>

class QRandomGenerator;

/// What tones are to meet, and which colours there are to meet it.
using Demands = QVector<TARN::ThemeTool::ContrastDemand>;

QColor randomColor(QRandomGenerator &random);
Demands randomDemands(QRandomGenerator &random);

bool isMetByColor(const QColor &color, const Demands &demands);
bool isMetBySomeGrey(const Demands &demands);

/// Returns all greys, from black to white.
QVector<QColor> greys();

/// Returns the tones of the hue and chroma of a colour, closely spaced.
QVector<QColor> tonesOf(const TARN::ThemeTool::Oklch &wanted);

/// Returns \a wanted and \a demands for a message.
QByteArray described(const QColor &wanted, const Demands &demands);
