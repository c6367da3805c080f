#include<\
/*
*/d