// ServeVerb.cpp: the command line of "serve".

#include "Publisher/serve/ServeVerb.h"

#include "Publisher/Refusal.h"
#include "Publisher/late/LatePart.h"

namespace Pelnar::Publisher
{

void AddServe(CLI::App& program, VerbContext& context)
{
    auto const [verb, options] = AddVerb<ServeOptions>(
        program, context, "serve",
        "Serve a folder to this computer only, for a dry run of a feed, until it is interrupted; the first "
        "line printed is the address",
        [](ServeOptions const& given, Console const& console) { return LoadLatePart().serve(console, given); });
    verb.add_option("FOLDER", options.folder,
                    "Folder to serve; links in it are not followed, and private keys, names that begin with a dot and "
                    "what only its owner may read are hidden")
        ->required();
    verb.add_option("--host", options.hosts,
                    "A name under which the server may be asked, beside localhost, 127.0.0.1 and ::1; requests for any "
                    "other are refused, so that no web page reads the folder")
        ->allow_extra_args(false)
        ->type_name("NAME");
    verb.add_option("--port", options.port, "Port to listen on; any free one without this")->type_name("NUMBER");
    verb.add_option("--fault", options.faults,
                    "What goes wrong with a file, in each answer: truncate:NAME:BYTES, slow:NAME:BYTES-PER-SECOND, "
                    "status:NAME:CODE or drop:NAME:BYTES (the connection is reset)")
        ->allow_extra_args(false)
        ->type_name("FAULT");
    verb.add_option("--tls", options.tls, "Serve https with this certificate chain and key, two PEM files")
        ->type_name("CERTIFICATE KEY")
        ->expected(2);
    verb.add_flag("--end-with-input", options.endsWithInput, "End when standard input does, for scripts");
}

} // namespace Pelnar::Publisher
