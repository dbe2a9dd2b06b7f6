#include "Publisher/Verb.h"

#include "Publisher/Refusal.h"
#include "Publisher/timeline/Timeline.h"

#include <QJsonArray>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <ostream>

namespace Pelnar::Publisher
{
namespace
{

struct TimelineOptions
{
    std::string log;
    bool isJson = false;
};

Emphasis EmphasisOf(EventKind kind)
{
    switch (kind)
    {
    case EventKind::Command:
        return Emphasis::Bold;
    case EventKind::Error:
        return Emphasis::Warning;
    case EventKind::Wrong:
        return Emphasis::Bad;
    case EventKind::Process:
    case EventKind::Lock:
    case EventKind::State:
    case EventKind::Callback:
    case EventKind::Told:
    case EventKind::Choice:
        return Emphasis::None;
    }
    return Emphasis::None;
}

void PrintEvent(TimelineEvent const& event, Console const& console)
{
    QString const holder = event.holder > 0 ? QStringLiteral("holder %1").arg(event.holder) : QStringLiteral("-");
    QString const head =
        QStringLiteral("%1:  %2  %3  %4  ")
            .arg(event.logLine, 5)
            .arg(event.time, holder.leftJustified(9), QString::fromLatin1(EventKindName(event.kind)).leftJustified(8));
    console.out.stream << head.toStdString() << console.out.Styled(EmphasisOf(event.kind), Printable(event.text))
                       << '\n';
}

QJsonObject JsonOf(Timeline const& timeline, QString const& name)
{
    QJsonArray events;
    for (TimelineEvent const& event : timeline.events)
    {
        events.append(QJsonObject{
            {QStringLiteral("line"), event.logLine},
            {QStringLiteral("time"), event.time},
            {QStringLiteral("kind"), QString::fromLatin1(EventKindName(event.kind)).toLower()},
            {QStringLiteral("text"), event.text},
            {QStringLiteral("holder"), event.holder},
            {QStringLiteral("check"), event.check},
            {QStringLiteral("state"),
             event.state ? QJsonValue(QLatin1String(App::Session::StateName(*event.state))) : QJsonValue()},
        });
    }
    return {{QStringLiteral("log"), name},
            {QStringLiteral("wrong"), timeline.WrongEvents()},
            {QStringLiteral("events"), events}};
}

ExitStatus Show(std::istream& log, QString const& name, TimelineOptions const& options, Console const& console)
{
    Timeline const timeline = RebuildTimeline(ReadSessionLog(log));
    if (timeline.events.empty())
    {
        return console.Refuse({name, 0, 0, QStringLiteral("no record of the update session"),
                               QStringLiteral("run the application with its log at level 30 (--v=30)")});
    }
    if (options.isJson)
    {
        console.PrintJson(JsonOf(timeline, name));
    }
    else
    {
        for (TimelineEvent const& event : timeline.events)
        {
            PrintEvent(event, console);
        }
        int const wrong = timeline.WrongEvents();
        console.Print(Printable(name) + QStringLiteral(": ") +
                      (wrong == 0 ? QStringLiteral("an order that can happen")
                                  : CountOf(std::size_t(wrong), QStringLiteral("place")) +
                                        QStringLiteral(" where the order cannot happen")));
    }
    return timeline.WrongEvents() == 0 ? ExitStatus::Clean : ExitStatus::Findings;
}

ExitStatus ShowTimeline(TimelineOptions const& options, Console const& console)
{
    if (options.log == "-")
    {
        return Show(console.in, QStringLiteral("<stdin>"), options, console);
    }
    QString const name = QString::fromStdString(options.log);
    std::ifstream file(options.log);
    if (!file)
    {
        return console.Refuse({name, 0, 0,
                               QStringLiteral("cannot be read: ") + QString::fromLocal8Bit(std::strerror(errno)),
                               QStringLiteral("give the path of a log, or - for standard input")});
    }
    return Show(file, name, options, console);
}

} // namespace

void AddTimeline(CLI::App& program, VerbContext& context)
{
    auto const options = std::make_shared<TimelineOptions>();
    CLI::App* const verb = program.add_subcommand(
        "timeline", "Rebuilds from an application's log what its update session did, and flags what cannot happen");
    verb->add_option("LOG", options->log, "Path of the log, or - for standard input")->required();
    verb->add_flag("--json", options->isJson, "Print one JSON object");
    SetWork(*verb, context, [options, &context] { return ShowTimeline(*options, context.console); });
}

} // namespace Pelnar::Publisher
