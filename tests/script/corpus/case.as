// versions: 5-8
// Names differ by case from version 7 on.
Value = 1;
value = 2;
trace(Value);    //=-6 2
                 //=7+ 1
Obj = {Part: 1};
trace(Obj.Part); //= 1
trace(Obj.part); //=-6 1
                 //=7+ undefined
function F() { return "F"; }
function f() { return "f"; }
trace(F());      //=-6 f
                 //=7+ F
// A function of its own hides a class of the player, as far as the names are one.
function sound(x) { return "own " + x; }
trace(Sound("s"));          //=-6 own s
                            //=7+ null
// Keywords and the names of values have one case from version 5 on; other names may look like them.
function Add(a, b) { return a + b; }
Default = 5; newLine = 6; Not = 7; With = 8; Null = 9;
trace(Add(Default, newLine) + Not + With + Null); //= 35
trace(Function == undefined); //=5-5 true
                              //=6+ false
Function.prototype.told = "told";
trace(Add.told);            //=5-5 undefined
                            //=6+ told
trace(Length("abc"));       //=-6 3
                            //=7+ undefined
