#include "Publisher/Verb.h"

#include "Publisher/Refusal.h"
#include "Publisher/files/InputFile.h"
#include "Publisher/timeline/Timeline.h"

#include <QJsonArray>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
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

struct EventLook
{
    char const* name;
    Emphasis emphasis = Emphasis::None;
};

/// In the order of EventKind.
constexpr EventLook LOOKS[] = {{"process"},
                               {"lock"},
                               {"command", Emphasis::Bold},
                               {"state"},
                               {"callback"},
                               {"told"},
                               {"choice"},
                               {"error", Emphasis::Warning},
                               {"WRONG", Emphasis::Bad}};
static_assert(std::size(LOOKS) == std::size_t(EventKind::Wrong) + 1);

EventLook const& LookOf(TimelineEvent const& event)
{
    return LOOKS[std::size_t(event.kind)];
}

void PrintEvent(TimelineEvent const& event, Console const& console)
{
    QString const holder = event.holder > 0 ? u"holder %1"_s.arg(event.holder) : u"-"_s;
    QString const head =
        u"%1:  %2  %3  %4  "_s.arg(event.logLine, 5)
            .arg(event.time, holder.leftJustified(9), QString::fromLatin1(LookOf(event).name).leftJustified(8));
    console.out.stream << head.toStdString() << console.out.Styled(LookOf(event).emphasis, event.text) << '\n';
}

QJsonObject JsonOf(Timeline const& timeline, QString const& name)
{
    QJsonArray events;
    for (TimelineEvent const& event : timeline.events)
    {
        events.append(QJsonObject{
            {u"line"_s, event.logLine},
            {u"time"_s, event.time},
            {u"kind"_s, QString::fromLatin1(LookOf(event).name).toLower()},
            {u"text"_s, event.text},
            {u"holder"_s, event.holder},
            {u"check"_s, event.check},
            {u"state"_s, event.state ? QJsonValue(QLatin1String(App::Session::StateName(*event.state))) : QJsonValue()},
        });
    }
    return {{u"log"_s, name}, {u"wrong"_s, timeline.WrongEvents()}, {u"events"_s, events}};
}

ExitStatus Show(std::istream& log, QString const& name, TimelineOptions const& options, Console const& console)
{
    Timeline const timeline = RebuildTimeline(ReadSessionLog(log));
    if (!log.eof())
    {
        return console.Refuse(
            {name,
             log.bad() ? u"cannot be read to its end"_s : u"has a line of more than a mebibyte, or too many lines"_s,
             u"give the log of an application"_s});
    }
    if (timeline.events.empty())
    {
        return console.Refuse(
            {name, u"contains no record of the update session"_s, u"run the application with log level 30 (--v=30)"_s});
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
        console.Print(name + u": "_s +
                      (wrong == 0 ? u"every sequence is possible"_s
                                  : CountOf(std::size_t(wrong), u"place"_s) + u" with an impossible sequence"_s));
    }
    return timeline.WrongEvents() == 0 ? ExitStatus::Clean : ExitStatus::Findings;
}

ExitStatus ShowTimeline(TimelineOptions const& options, Console const& console)
{
    if (options.log == "-")
    {
        return Show(console.in, u"<stdin>"_s, options, console);
    }
    QString const name = QString::fromStdString(options.log);
    static_cast<void>(OpenInputFile(name)); // a device has no end, and a folder no lines
    std::ifstream file(options.log);
    if (!file)
    {
        return console.Refuse({name, u"cannot be read: "_s + QString::fromLocal8Bit(std::strerror(errno)),
                               u"give the path of a log, or - for standard input"_s});
    }
    return Show(file, name, options, console);
}

} // namespace

void AddTimeline(CLI::App& program, VerbContext& context)
{
    auto const [verb, options] = AddVerb<TimelineOptions>(
        program, context, "timeline",
        "Show from an application's log what its update session did, and mark impossible sequences", ShowTimeline);
    verb.add_option("LOG", options.log, "Path of the log, or - for standard input")->required();
    verb.add_flag("--json", options.isJson, "Print one JSON object");
}

} // namespace Pelnar::Publisher
