#pragma once

class QAbstractButton;
class TextRecorder;

/// Takes down what \a button shows.
void recordButton(const QAbstractButton &button, TextRecorder &recorder);
