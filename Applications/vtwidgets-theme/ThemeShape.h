#pragma once

// Whether a document has the shape of a theme: the right keys with values of the right type, length and
// range, and no words but known ones. The schema that editors use as well says what is right, and a JSON
// Schema validator decides.

#include <QtCore/QList>
#include <QtCore/QString>

class JsonText;

struct ShapeFault
{
    // A JSON pointer to the value, or the member, that is wrong.
    QString pointer;
    bool atKey = false;
    QString message;
};

QList<ShapeFault> shapeFaults(const JsonText &inText);
