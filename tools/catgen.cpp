// Placeholder: the catalogue generator lands with the data files.
int main() { return 0; }
