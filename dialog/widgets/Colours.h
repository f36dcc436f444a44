// SPDX-License-Identifier: MIT
#pragma once

// Colours that fit the palette, light or dark: every text has a contrast of at least 4.5 to 1 with what is behind it.

#include <SdkDebugDialog/Annotation.h>
#include <SdkDebugDialog/Diagnosis.h>

#include <QColor>
#include <QPalette>
#include <QWidget>

namespace qvtdialog {

// What a colour says. Where it matters, something else says it too: a text, a pattern or a line.
enum class Tone {
  accent,   // the part of a picture that it is about, such as the debug device
  error,    // wrong
  warning,  // probably wrong
  note,     // worth knowing
  quiet,    // less important than the text around it
  added,    // new, since the last change
  byte,     // a byte that is no character
};

// For texts and lines on the base colour, and on any of the backgrounds below.
QColor colour(Tone tone, const QPalette& palette);
QColor colour(SdkDebugDialog::Role role, const QPalette& palette);
Tone tone_of(SdkDebugDialog::Severity severity);

// For areas behind a text.
QColor background(Tone tone, const QPalette& palette);

// Writes the text of a label in a colour that fits its palette as it is now.
void set_ink(QWidget& label, Tone tone);

// From 1 to 21: 21 is black on white.
double contrast(const QColor& a, const QColor& b);

bool is_dark(const QPalette& palette);

}  // namespace qvtdialog
