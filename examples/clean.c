/*
 * Cleans standard input as one text:  cc clean.c $(pkg-config --cflags --libs nerlo) -o clean
 *                                     ./clean pdf <page.txt >clean.txt
 */
#include <nerlo.h>

#include <stdio.h>
#include <stdlib.h>

static char *read_all(FILE *file, size_t *size) {
    size_t capacity = 0;
    char *text = NULL;
    *size = 0;
    do {
        capacity += capacity / 2 + 65536;
        char *larger = realloc(text, capacity);
        if (!larger) {
            free(text);
            return NULL;
        }
        text = larger;
        *size += fread(text + *size, 1, capacity - *size, file);
    } while (*size == capacity);
    return text;
}

static int write_piece(void *file, const char *piece, size_t size) {
    return fwrite(piece, 1, size, file) == size ? 0 : 1;
}

int main(int argc, char **argv) {
    const char *profile = argc > 1 ? argv[1] : "gentle";
    size_t size;
    char *text = read_all(stdin, &size);
    nerlo_cleaner *cleaner = NULL;
    nerlo_status status = text ? NERLO_OK : NERLO_OUT_OF_MEMORY;
    if (status == NERLO_OK) {
        status = nerlo_cleaner_new(profile, NULL, 0, NULL, NULL, &cleaner);
    }
    if (status == NERLO_OK) {
        status = nerlo_clean_to(cleaner, text, size, write_piece, stdout);
    }
    if (status != NERLO_OK) {
        fprintf(stderr, "clean: %s\n", nerlo_last_error());
    }
    nerlo_cleaner_free(cleaner);
    free(text);
    return status == NERLO_OK && fflush(stdout) == 0 ? 0 : 1;
}
