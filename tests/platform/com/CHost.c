#include <dlfcn.h>
#include <stddef.h>
#include <stdint.h>
#include <string.h>

typedef struct {
  uint32_t data1;
  uint16_t data2, data3;
  uint8_t data4[8];
} HostGuid;

struct HostFactory;

typedef struct {
  int32_t (*QueryInterface)(struct HostFactory*, const HostGuid*, void**);
  uint32_t (*AddRef)(struct HostFactory*);
  uint32_t (*Release)(struct HostFactory*);
  int32_t (*CreateInstance)(struct HostFactory*, void*, const HostGuid*, void**);
  int32_t (*LockServer)(struct HostFactory*, int32_t);
} HostTable;

typedef struct HostFactory {
  const HostTable* table;
} HostFactory;

typedef int32_t (*GetClassObject)(const HostGuid*, const HostGuid*, void**);
typedef int32_t (*NoArguments)(void);

static void Find(void* library, const char* name, void* entry) {
  void* found = dlsym(library, name);
  memcpy(entry, &found, sizeof found);
}

/* Loads the library, makes an object of the class through it and lets it go again.
   0 if all went as it must, else the number of the step that did not. */
int CHostRun(const char* path, const void* classId) {
  static const HostGuid unknownId = {0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
  static const HostGuid factoryId = {1, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
  void* library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
  if (library == NULL) return 1;
  GetClassObject getClassObject;
  NoArguments canUnload;
  Find(library, "DllGetClassObject", &getClassObject);
  Find(library, "DllCanUnloadNow", &canUnload);
  if (getClassObject == NULL || canUnload == NULL) return 2;
  if (canUnload() != 0) return 3;

  HostFactory* factory = NULL;
  if (getClassObject(&unknownId, &factoryId, (void**)&factory) != (int32_t)0x80040111 || factory != NULL)
    return 4;
  if (getClassObject(classId, &factoryId, (void**)&factory) != 0 || factory == NULL) return 5;
  HostFactory* object = NULL;
  if (factory->table->CreateInstance(factory, factory, &unknownId, (void**)&object) != (int32_t)0x80040110)
    return 6;
  if (factory->table->CreateInstance(factory, NULL, &factoryId, (void**)&object) != (int32_t)0x80004002)
    return 7;
  if (factory->table->CreateInstance(factory, NULL, &unknownId, (void**)&object) != 0 || object == NULL)
    return 8;
  factory->table->Release(factory);
  if (canUnload() != 1) return 9;
  if (object->table->AddRef(object) != 2 || object->table->Release(object) != 1) return 10;
  if (object->table->Release(object) != 0 || canUnload() != 0) return 11;
  return dlclose(library) == 0 ? 0 : 12;
}
