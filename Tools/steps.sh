# Sourced by the commands: runs steps one after the other and prints how long each one took.

step_times=()
step=

# run_step NAME COMMAND [ARGUMENT...]
run_step() {
    step=$1
    shift
    local started=$SECONDS
    "$@"
    step_times+=("$(printf '%5d s  %s' $((SECONDS - started)) "$step")")
}

print_step_times() {
    printf '\n'
    printf '%s\n' "${step_times[@]}"
}
