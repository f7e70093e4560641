// Its precompiled headers are what counts.
int main() {}
