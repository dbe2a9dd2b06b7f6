# Completion of pelnar-appcast for bash, made from the program's own description of its command line.
_pelnar_appcast()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local verb="" words="" word
    for word in "${COMP_WORDS[@]:1:COMP_CWORD - 1}"; do
        case "$verb/$word" in
            "/explain" | \
            "/lint" | \
            "/matrix" | \
            "/diff" | \
            "/simulate" | \
            "/timeline" | \
            "/keys" | \
            "/sign" | \
            "/verify" | \
            "/generate" | \
            "/check-release" | \
            "/sign-feed" | \
            "/promote" | \
            "/withdraw" | \
            "/edit-notes" | \
            "/prune" | \
            "/delta" | \
            "/serve" | \
            "keys/generate" | \
            "keys/show" | \
            "keys/export" | \
            "keys/state" | \
            "keys/rotate" | \
            "delta/create" | \
            "delta/apply" | \
            "delta/show")
                verb="${verb:+$verb }$word" ;;
        esac
    done
    case "$verb $previous" in
        "explain --platform") words="macos linux" ;;
        "matrix --platform") words="macos linux" ;;
        "diff --platform") words="macos linux" ;;
        "simulate --platform") words="macos linux" ;;
        "keys generate --format") words="xml gnustep bare" ;;
        "keys show --format") words="xml gnustep bare" ;;
        "keys export --form") words="seed secret-key" ;;
        "keys rotate --platform") words="macos linux" ;;
        "generate --machine") words="x86_64 aarch64 i386 armhf riscv64 ppc64le s390x" ;;
        "generate --effort") words="low usual high" ;;
        "check-release --machine") words="x86_64 aarch64 i386 armhf riscv64 ppc64le s390x" ;;
        "delta create --effort") words="low usual high" ;;
    esac
    if [ -z "$words" ]; then
        case "$verb" in
            "") words="explain lint matrix diff simulate timeline keys sign verify generate check-release sign-feed promote withdraw edit-notes prune delta serve -h --help --version" ;;
            "explain") words="-h --help --local-version --system-version --platform --machine --channels --at --published-at --json --rollout-group --public-key --after-delta" ;;
            "lint") words="-h --help --published-at --fetch --signed --public-key --root-public-key --previous --baseline --strict --json --sarif --each --rules" ;;
            "matrix") words="-h --help --versions --systems --platform --machine --channels --at --published-at --json --rollout-group --expect" ;;
            "diff") words="-h --help --versions --platform --machine --channels --at --published-at --json --rollout-group" ;;
            "simulate") words="-h --help --clients --days --versions --system-version --seed --svg --platform --machine --channels --at --published-at --json" ;;
            "timeline") words="-h --help --json" ;;
            "keys") words="generate show export state rotate -h --help" ;;
            "keys generate") words="-h --help --format" ;;
            "keys show") words="-h --help --format" ;;
            "keys export") words="-h --help --form --to-terminal" ;;
            "keys state") words="-h --help --root-key --signer --signer-key --serial --bundle --valid --revoke --valid-for" ;;
            "keys rotate") words="-h --help --from --to --platform" ;;
            "sign") words="-h --help --key --signer --signer-key" ;;
            "verify") words="-h --help --signature --public-key" ;;
            "generate") words="-h --help --key --signer --signer-key --second-key --second-signer --second-signer-key --url-prefix --url-template --machine --public-key -o --output --title --link --deltas --clients --effort --recompress --key-statement --sign-feed --valid-for --serial" ;;
            "check-release") words="-h --help --machine --public-key" ;;
            "sign-feed") words="-h --help --key --signer --signer-key --valid-for --serial --key-statement --accept-changes -o --output" ;;
            "promote") words="-h --help --dry-run --key --signer --signer-key --valid-for --serial --to" ;;
            "withdraw") words="-h --help --dry-run --key --signer --signer-key --valid-for --serial" ;;
            "edit-notes") words="-h --help --dry-run --key --signer --signer-key --valid-for --serial" ;;
            "prune") words="-h --help --dry-run --key --signer --signer-key --valid-for --serial --keep" ;;
            "delta") words="create apply show -h --help" ;;
            "delta create") words="-h --help -o --output --key --signer --signer-key --effort" ;;
            "delta apply") words="-h --help -o --output" ;;
            "delta show") words="-h --help --json" ;;
            "serve") words="-h --help --host --port --fault --tls --end-with-input" ;;
        esac
        # A verb with verbs takes nothing else; any other takes files besides its options.
        case "$verb" in
            "" | "keys" | "delta") ;;
            *)
                if [[ $current != -* ]]; then
                    mapfile -t COMPREPLY < <(compgen -f -- "$current")
                    return
                fi ;;
        esac
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -o filenames -F _pelnar_appcast pelnar-appcast
