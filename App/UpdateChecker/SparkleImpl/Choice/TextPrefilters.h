// TextPrefilters.h: Qt's answers to two questions about the texts of a feed item, computed without Qt where they are
// certain. Plain C++, private to the session.
// Thread: any. Each result equals Qt's for every text; the tests compare both over random texts.
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
