// Sentence.h: one or more sentences of the engine for a person, in English for logs and in the person's language for a
// window.
// Thread: any, except for Translated. The text is a literal.
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
    /// The value for %1, %2 and so on. A text is inserted unchanged, with any content.
    using Value = std::variant<QString, ByteCount>;

    Sentence() = default;
    /// \a text is a literal that QT_TRANSLATE_NOOP marks with the context "PelnarEngine_Errors".
    explicit Sentence(char const* text, std::initializer_list<Value> values = {}) : m_text(text), m_values(values) {}

    /// The first sentence's literal, which is the key of the translations; nullptr for no sentence.
    char const* Source() const { return m_text; }
    [[nodiscard]] bool IsEmpty() const { return m_text == nullptr; }

    /// This sentence, a blank if the language uses one, and \a next.
    Sentence FollowedBy(Sentence const& next) const;

    QString English() const;
    /// In the language of the installed translations, with sizes in the default locale. \a shown converts every
    /// inserted text. REQUIRES: the Qt main thread.
    QString Translated(std::function<QString(QString const&)> const& shown = {}) const;

private:
    char const* m_text = nullptr;
    QVector<Value> m_values;
    std::vector<Sentence> m_following;
};

/// \a bytes in a form for people, for example "1.5 MB".
QString SizeText(quint64 bytes, QLocale const& locale);

} // namespace Pelnar::Engine
