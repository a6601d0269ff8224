/* The C interface: one JSON request in, one JSON response out (the call
   protocol). The response is allocated by the library; free it with
   tamrel_free. Never returns NULL except when memory runs out. */
#ifndef TAMREL_C_API_H
#define TAMREL_C_API_H
#ifdef __cplusplus
extern "C" {
#endif

char* tamrel_call(const char* request_json);
void tamrel_free(char* response);
const char* tamrel_version(void);

#ifdef __cplusplus
}
#endif
#endif
