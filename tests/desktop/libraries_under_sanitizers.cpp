// Suppresses sanitizer reports about other libraries. Only called by the runtime of the sanitizers.

extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n"
         "leak:libudev\n"
         "leak:libQt6WebEngineCore\n"
         "leak:QtSharedPointer::ExternalRefCountData::getAndRef\n";
}

/// The browser frees objects with another size than it allocated.
extern "C" const char* __asan_default_options() { return "new_delete_type_mismatch=0"; }
