#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace vidora {

/// Font, colour and position of a run of text, by role: the theme turns roles into values.
struct TextAttributes
{
    enum class Weight
    {
        Regular,
        Semibold,
        Bold
    };
    enum class Colour
    {
        Inherited,
        Label,
        SecondaryLabel,
        LightGrey,
        Given
    };

    double pointSize = 0; ///< 0: the size of the surrounding text
    Weight weight = Weight::Regular;
    bool monospacedDigits = false;
    Colour colour = Colour::Inherited;
    QString givenColour; ///< name of the role handed in by the caller, with Colour::Given
    double baselineOffset = 0;

    friend bool operator==(const TextAttributes&, const TextAttributes&) = default;
};

/// Text in runs, each with attributes of its own. Holds no markup: whatever a provider wrote is text here, and a screen
/// escapes it when it makes rich text of the runs.
class AttributedText
{
public:
    struct Run
    {
        QString text;
        TextAttributes attributes;
        friend bool operator==(const Run&, const Run&) = default;
    };

    AttributedText() = default;
    AttributedText(QString plain); // implicit on purpose: a plain text is the usual case

    /// An empty text adds nothing; a text with the attributes of the one ahead of it lengthens that run.
    void append(QString text, TextAttributes attributes);
    /// The text without its attributes.
    QString string() const;
    /// True for text without attributes: one run, or none, with default attributes.
    bool isPlain() const;
    bool isEmpty() const;
    const std::vector<Run>& runs() const { return m_runs; }

    friend bool operator==(const AttributedText&, const AttributedText&) = default;

private:
    std::vector<Run> m_runs;
};

} // namespace vidora
