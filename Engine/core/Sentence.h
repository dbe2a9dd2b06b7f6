// Sentence.h: a sentence of the engine for a person, or several, in English for logs and in the person's language for a
// window. Thread: any, but for Translated. Ownership: values only; the text is a literal.
#pragma once

#include <QString>
#include <QVector>

#include <functional>
#include <initializer_list>
#include <variant>
#include <vector>

class QLocale;

namespace Pelnar::Engine
{

/// Shown in the units of the language.
struct ByteCount
{
    quint64 bytes = 0;
};

class Sentence
{
public:
    /// What is put in place of %1, %2 and so on. A text is put in as it is, no matter what it contains.
    using Value = std::variant<QString, ByteCount>;

    Sentence() = default;
    /// \a text is a literal that QT_TRANSLATE_NOOP marks with the context "PelnarEngine_Errors".
    explicit Sentence(char const* text, std::initializer_list<Value> values = {}) : m_text(text), m_values(values) {}

    /// The first one's literal, which is the key of the translations; nullptr for no sentence.
    char const* Source() const { return m_text; }
    [[nodiscard]] bool IsEmpty() const { return m_text == nullptr; }

    /// This one, a blank where the language writes one, and \a next.
    Sentence FollowedBy(Sentence const& next) const;

    QString English() const;
    /// In the language of the installed translations and with the sizes of the default locale; every text that is put
    /// in is what \a shown makes of it. REQUIRES: the Qt main thread.
    QString Translated(std::function<QString(QString const&)> const& shown = {}) const;

private:
    char const* m_text = nullptr;
    QVector<Value> m_values;
    std::vector<Sentence> m_following;
};

/// \a bytes as a person reads them, for example "1.5 MB".
QString SizeText(quint64 bytes, QLocale const& locale);

} // namespace Pelnar::Engine
