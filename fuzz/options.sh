# For ./test and fuzz/campaign: how the fuzz targets run.
# The weights that "entropic" keeps for each input cost more time than a unit.
fuzzOptions=(-entropic=0 -timeout=10 -rss_limit_mb=1024)
# Without the stack of each allocation. To have it in a report, run the target on the finding without this.
export ASAN_OPTIONS=malloc_context_size=0:quarantine_size_mb=1
