# Sourced by the scripts that use the prebuilt object managers: prints the
# shared directory (VEX_SHARED_DIR, or beside the repository, or beside the
# main checkout of a git worktree) that holds every named subdirectory.
#   shared_dir REPO SUBDIR...
shared_dir() {
    local repo=$1 d sub ok
    shift
    for d in "${VEX_SHARED_DIR:-}" "$repo/../shared" \
             "$(git -C "$repo" rev-parse --path-format=absolute --git-common-dir 2>/dev/null)/../../shared"; do
        [[ -n $d ]] || continue
        ok=1
        for sub in "$@"; do [[ -d $d/$sub ]] || ok=0; done
        ((ok)) && { (cd "$d" && pwd); return 0; }
    done
    return 1
}
