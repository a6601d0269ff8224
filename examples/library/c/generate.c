/* A C program using tamrel: one call of the call protocol, then a whole
   transfer file made in memory from a job file.

     cc generate.c $(pkg-config --cflags --libs tamrel) -o generate
     ./generate ../../deuev-registration.json */
#include <stdio.h>
#include <stdlib.h>
#include <tamrel/c_api.h>

static char* read_file(const char* path) {
    FILE* f = fopen(path, "rb");
    if (!f) return NULL;
    fseek(f, 0, SEEK_END);
    long size = ftell(f);
    fseek(f, 0, SEEK_SET);
    char* text = malloc((size_t)size + 1);
    if (text && fread(text, 1, (size_t)size, f) != (size_t)size) {
        free(text);
        text = NULL;
    }
    if (text) text[size] = '\0';
    fclose(f);
    return text;
}

int main(int argc, char** argv) {
    if (argc != 2) {
        fprintf(stderr, "usage: %s JOB.json\n", argv[0]);
        return 2;
    }
    printf("tamrel %s\n", tamrel_version());

    char* response = tamrel_call(
        "{\"class\":\"clsGenMeldung\",\"method\":\"GenNCSZ\",\"now\":\"2024-03-01T10:11:12\","
        "\"args\":{\"strBNRAb\":\"98765432\",\"strBNREm\":\"12345671\",\"strFileNr\":\"1\",\"strCount\":\"2\",\"enmVerfahren\":0}}");
    printf("%s\n", response);
    tamrel_free(response);

    char* job = read_file(argv[1]);
    if (!job) {
        fprintf(stderr, "%s: cannot be read\n", argv[1]);
        return 2;
    }
    char *file = NULL, *protocol = NULL, *messages = NULL;
    size_t length = 0;
    int code = tamrel_generate_memory(job, "{\"encoding\":\"UTF-8\"}", &file, &length, &protocol, &messages);
    free(job);
    fputs(messages, stderr);
    if (file) fwrite(file, 1, length, stdout);
    tamrel_free(file);
    tamrel_free(protocol);
    tamrel_free(messages);
    return code;
}
