// TextPrefilters_p.h: Qt's answers to two questions about the texts of a feed item, given without Qt where they are
// certain. Plain C++, private to the session. Thread: any.
// Each answer is Qt's, no matter what the text is; the tests hold them against Qt over random texts.
#pragma once

#include <QDate>
#include <QString>

namespace Pelnar::App::Session
{

/// Whether QUrl(\a text) is valid.
[[nodiscard]] bool IsValidAddress(QString const& text);

/// QDate::fromString(\a text, Qt::TextDate).
QDate TextDate(QString const& text);

} // namespace Pelnar::App::Session
