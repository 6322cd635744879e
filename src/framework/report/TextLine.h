#pragma once

#include <QGlyphRun>
#include <QList>
#include <QString>

class QPainter;

// A text set on one line as QPainter lays it out on the painter's device in
// the painter's font, from (0, 0) with the baseline at the ascent.
struct TextLine
{
    bool single = false;    // false: the text takes more than one line
    double width = 0.0;     // as QTextLine gives them
    double advance = 0.0;
    double height = 0.0;    // ascent and descent
    QList<QGlyphRun> runs;

    // Spaces at the end count.
    static TextLine layOut(QPainter &painter, const QString &text);
};
