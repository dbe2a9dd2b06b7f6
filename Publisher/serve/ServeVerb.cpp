// ServeVerb.cpp: the command line of "serve".

#include "Publisher/serve/ServeVerb.h"

#include "Publisher/Refusal.h"
#include "Publisher/late/LatePart.h"

namespace Pelnar::Publisher
{

void AddServe(CLI::App& program, VerbContext& context)
{
    auto const [verb, options] = AddVerb<ServeOptions>(program, context, "serve",
                                                       "Serve a folder to this computer only, for a dry run of a feed, "
                                                       "until interrupted. The first output line is the address",
                                                       [](ServeOptions const& given, Console const& console)
                                                       { return LoadLatePart().serve(console, given); });
    verb.add_option("FOLDER", options.folder,
                    "Folder to serve. Links are not followed. Hidden are private keys, names that begin with a dot, "
                    "and files that only their owner may read")
        ->required();
    verb.add_option("--host", options.hosts,
                    "Additional host name for requests, besides localhost, 127.0.0.1 and ::1. Requests for other names "
                    "are refused, so that no web page can read the folder")
        ->allow_extra_args(false)
        ->type_name("NAME");
    verb.add_option("--port", options.port, "Port to listen on; default: any free port")
        ->type_name("NUMBER")
        ->check(CLI::Range(0, 65535));
    verb.add_option("--fault", options.faults,
                    "Fault in every response for a file: truncate:NAME:BYTES, slow:NAME:BYTES-PER-SECOND, "
                    "status:NAME:CODE or drop:NAME:BYTES (resets the connection)")
        ->allow_extra_args(false)
        ->type_name("FAULT");
    verb.add_option("--tls", options.tls, "Serve https with this certificate chain and key, two PEM files")
        ->type_name("CERTIFICATE KEY")
        ->expected(2);
    verb.add_flag("--end-with-input", options.endsWithInput, "End when standard input ends, for scripts");
}

} // namespace Pelnar::Publisher
