// What the sanitizers are to pass over: faults within libraries that are none of ours. Asked for by their runtime;
// in a build without them nobody calls these.

extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n"
         "leak:libudev\n"
         "leak:libQt6WebEngineCore\n"
         "leak:QtSharedPointer::ExternalRefCountData::getAndRef\n";
}

/// The browser gives objects back by another size than it took them with.
extern "C" const char* __asan_default_options() { return "new_delete_type_mismatch=0"; }
