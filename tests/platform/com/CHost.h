#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/* Loads the library, makes an object of the class through it and lets it go again.
   0 if all went as it must, else the number of the step that did not. */
int CHostRun(const char* library, const void* classId);

#ifdef __cplusplus
}
#endif
